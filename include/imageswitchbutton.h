#ifndef IMAGESWITCHBUTTON_H
#define IMAGESWITCHBUTTON_H

#include "circlebutton.h"

namespace ZIRVOUI {

/*!
 * A round on/off button that shows one of two SVG icons, for its open and its closed state.
 *
 * It starts closed, and every click turns it over.  Both icons are drawn at the natural size of
 * the closed one.
 */
class ZCOMMONWIDGETS_EXPORT ImageSwitchButton : public CircleButton
{
    Q_OBJECT

public:
    /*! Takes two paths, as CircleButton takes one. */
    explicit ImageSwitchButton(const QString &openImage, const QString &closedImage,
                               QWidget *parent = nullptr);
    ~ImageSwitchButton() override;

    /*! Whether it is open, false by default; the setter shows that icon and emits nothing. */
    void setOpenState(bool open);
    bool openState();

Q_SIGNALS:
    /*! A click has turned the button over; \a open is the state it has now. */
    void signal_clicked(bool open);

private Q_SLOTS:
    void slot_clicked();

private:
    QString m_openImage;
    QString m_closedImage;
    bool m_open = false;
};

} // namespace ZIRVOUI

#endif
