#include "row.h"

#include <QLineEdit>
#include <lineedit.h>

using ZIRVOUI::LineEdit;

namespace {

constexpr double Margin = 2; // that QLineEdit leaves beside its text

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
        painter.drawText(wholeOf(size).adjusted(Margin, 0, -Margin, 0), Qt::AlignVCenter, Text);
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
