#include "repaints.h"

#include <QTest>
#include <QWidget>

namespace {

struct PaintCounter : QObject
{
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint;
        return false;
    }

    int count = 0;
};

} // namespace

int repaints(QWidget &widget, const std::function<void()> &change)
{
    PaintCounter paints;
    widget.show();
    if (!QTest::qWaitForWindowExposed(&widget))
        qFatal("The widget does not show");
    QCoreApplication::processEvents();
    widget.installEventFilter(&paints);
    change();
    QCoreApplication::processEvents();
    return paints.count;
}

bool paintsOnlyWhenShown(QWidget &widget)
{
    const auto hide = [&] {
        widget.hide();
        QTest::qWait(60);
    };
    return repaints(widget, [] { QTest::qWait(100); }) > 0 && repaints(widget, hide) == 0;
}
