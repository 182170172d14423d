#include "widgetlook_p.h"

namespace ZIRVOUI {

void setFontPixelSize(QWidget &widget, int size)
{
    QFont font = widget.font();
    if (size > 0)
        font.setPixelSize(size);
    widget.setFont(font);
}

void setPaletteBrush(QWidget &widget, QPalette::ColorRole role, const QBrush &brush)
{
    QPalette palette = widget.palette();
    palette.setBrush(QPalette::All, role, brush);
    widget.setPalette(palette);
}

} // namespace ZIRVOUI
