#ifndef ZGIFWIDGET_H
#define ZGIFWIDGET_H

#include "zcommonwidgets_export.h"

#include <QLabel>
#include <QScopedPointer>

class QMovie;

namespace ZIRVOUI {

/*!
 * Plays a GIF, or any other animation that QMovie reads, from its construction on and as often as
 * the file says.
 *
 * The movie() belongs to the widget and goes on while the widget is hidden, as with any QLabel.  A
 * file that cannot be read shows nothing.  The path is trusted: each frame costs the memory of its
 * full size.
 */
class ZCOMMONWIDGETS_EXPORT ZGifWidget : public QLabel
{
    Q_OBJECT

public:
    /*!
     * Plays the file at \a path; an empty path plays nothing, nor does a pipe, a device or one of
     * more than 64 million pixels.
     */
    explicit ZGifWidget(const QString &path, QWidget *parent = nullptr);
    ~ZGifWidget() override;

    /*!
     * Scales the frames to this size in pixels from the next one on; the widget keeps its own.  A
     * size of more than 64 million pixels is not taken; one without width or height, or negative,
     * is the file's own.
     */
    void setSize(const int &width, const int &height);
    /*!
     * Fixes the widget's size to that of the current frame; to nothing if no frame could be read.
     */
    void toDefaultSize();

private:
    QScopedPointer<QMovie> m_movie;
};

} // namespace ZIRVOUI

#endif
