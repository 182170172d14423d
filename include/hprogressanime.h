#ifndef HPROGRESSANIME_H
#define HPROGRESSANIME_H

#include "zcommonwidgets_export.h"

#include <QColor>
#include <QWidget>

class QVariantAnimation;

namespace ZIRVOUI {

/*!
 * A strip that shows activity: a white bar grows out of the left edge to 375 pixels and slides off
 * to the right, every 1.2 seconds, from construction to destruction.
 *
 * The way is 1200 pixels whatever the widget's width.  A hidden strip keeps time without painting.
 * It asks a layout for no size: give it a height.
 */
class ZCOMMONWIDGETS_EXPORT HProgressAnime : public QWidget
{
    Q_OBJECT

public:
    /*! On a dark gray, RGB (58, 58, 58). */
    explicit HProgressAnime(QWidget *parent = nullptr);
    ~HProgressAnime() override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void initBarWidthAnima();
    void initBarPointAnima();

    QVariantAnimation *m_barWidthAnimation = nullptr;
    QVariantAnimation *m_barPointAnimation = nullptr;
    QColor m_backgroundColor = QColor(58, 58, 58);
    QColor m_barColor = Qt::white;
};

} // namespace ZIRVOUI

#endif
