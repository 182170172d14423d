#include "imageswitchbutton.h"

namespace ZIRVOUI {

ImageSwitchButton::ImageSwitchButton(const QString &openImage, const QString &closedImage,
                                     QWidget *parent)
    : CircleButton(closedImage, parent)
    , m_openImage(openImage)
    , m_closedImage(closedImage)
{
    connect(this, &QAbstractButton::clicked, this, &ImageSwitchButton::slot_clicked);
}

ImageSwitchButton::~ImageSwitchButton() = default;

void ImageSwitchButton::setOpenState(bool open)
{
    m_open = open;
    loadSvg(open ? m_openImage : m_closedImage);
}

bool ImageSwitchButton::openState()
{
    return m_open;
}

void ImageSwitchButton::slot_clicked()
{
    setOpenState(!m_open);
    Q_EMIT signal_clicked(m_open);
}

} // namespace ZIRVOUI
