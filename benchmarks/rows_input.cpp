#include "row.h"

#include <QLineEdit>
#include <lineedit.h>

using ZIRVOUI::LineEdit;

namespace {

constexpr int Margin = 2; // that QLineEdit leaves beside its text

const QString Text = QStringLiteral("192.168.1.25");

Row lineEdit()
{
    const auto library = [] {
        auto *edit = new LineEdit;
        edit->setText(Text);
        return edit;
    };
    const auto bare = [](QPainter &painter, const QSize &size, int) {
        painter.setPen(Qt::white);
        const int height = painter.fontMetrics().height();
        const int top = (size.height() - height + 1) / 2; // a whole one at any ratio
        painter.drawText(QRect(Margin, top, size.width() - 2 * Margin, height), 0, Text);
    };
    return {QStringLiteral("LineEdit"),
            {200, 36},
            library,
            bare,
            [] { return new QLineEdit(Text); },
            QStringLiteral("background: transparent; color: white; border: none;")};
}

} // namespace

Rows inputRows()
{
    return {lineEdit()};
}
