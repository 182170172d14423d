#include "widgettest.h"

#include <QPainterPath>
#include <QScrollArea>
#include <QStyleFactory>
#include <QStyleOptionSlider>
#include <zscrollbar.h>

using ZIRVOUI::ZScrollBar;

namespace {

struct Bar : ZScrollBar
{
    using ZScrollBar::ZScrollBar;

    QRect handle() const
    {
        QStyleOptionSlider option;
        initStyleOption(&option);
        return style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider,
                                       this);
    }
};

QImage expected(const Bar &bar, const QColor &track, const QColor &handle)
{
    return reference(bar.size(), [&](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillRect(bar.rect(), bar.palette().window());
        if (qMin(bar.width(), bar.height()) < 5)
            return;
        const QRectF inner(2, 2, bar.width() - 4, bar.height() - 4);
        QPainterPath clip;
        clip.addRoundedRect(inner, 3, 3);
        painter.setClipPath(clip);
        painter.fillRect(inner, track);
        painter.setPen(Qt::NoPen);
        painter.setBrush(handle);
        painter.drawRoundedRect(QRectF(bar.handle()), 8, 8);
    });
}

// The values that a bar takes as it scrolls a tall content, in all ways.
QVector<int> scrolled(QScrollBar *bar)
{
    QVector<int> values;
    QScrollArea area;
    area.setWidget(new QWidget);
    area.widget()->setFixedSize(100, 3000);
    area.setVerticalScrollBar(bar);
    area.resize(200, 300);
    QObject::connect(bar, &QScrollBar::valueChanged, [&](int value) { values << value; });
    area.show();
    if (!QTest::qWaitForWindowExposed(&area))
        return {};

    const QPoint top(bar->width() / 2, 30), bottom(bar->width() / 2, bar->height() - 30);
    Finger finger(*bar);
    finger.press(top);
    finger.move({top.x(), 90});
    finger.move({top.x() - 30, 150});
    finger.release({top.x() - 30, 150});
    values << bar->isSliderDown();
    finger.tap(bottom);
    for (const int key : {Qt::Key_PageDown, Qt::Key_Down, Qt::Key_Home, Qt::Key_End, Qt::Key_Up})
        QTest::keyClick(bar, Qt::Key(key));
    static QTouchDevice *screen = QTest::createTouchDevice();
    const QPoint touched = bar->mapTo(&area, bottom);
    QTest::touchEvent(&area, screen).press(0, touched, &area);
    QTest::touchEvent(&area, screen).move(0, touched - QPoint(0, 60), &area);
    QTest::touchEvent(&area, screen).release(0, touched - QPoint(0, 60), &area);
    return values;
}

} // namespace

class TestZScrollBar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void darkensUnderThePointer_data()
    {
        QTest::addColumn<QString>("style");
        QTest::addColumn<QString>("sheet");
        for (const QString &style : QStyleFactory::keys())
            QTest::newRow(qPrintable(style)) << style << QString();
        const QString sheet(
            "QScrollBar { background: red } QScrollBar::handle { min-height: 40px }");
        QTest::newRow("style sheet") << QString("Fusion") << sheet;
    }

    void darkensUnderThePointer()
    {
        QFETCH(QString, style);
        QFETCH(QString, sheet);
        const QScopedPointer<QStyle> look(QStyleFactory::create(style));
        const QColor track(0, 0, 255, 90), rests("#717582");
        const QColor hovered = rests.darker(120), pressed = hovered.darker(140);
        for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
            Bar bar(orientation);
            bar.setStyle(look.data());
            bar.setStyleSheet(sheet);
            bar.ensurePolished();
            orientation == Qt::Vertical ? bar.resize(20, 221) : bar.resize(220, 21);
            bar.setSliderColor(rests);
            bar.setBackGroudColor(track);
            const QPoint on = bar.handle().topLeft(), off = bar.rect().center();
            QVERIFY(bar.handle().isValid() && !bar.handle().contains(off));
            const auto shows = [&](QEvent::Type type, const QPoint &at, const QColor &handle) {
                const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
                QMouseEvent event(type, at, button, Qt::NoButton, {});
                bar.setValue(0); // a press may have moved the handle
                QCoreApplication::sendEvent(&bar, &event);
                return difference(snapshot(bar), expected(bar, track, handle)).isEmpty();
            };
            QVERIFY(shows(QEvent::MouseMove, off, rests));
            QVERIFY(shows(QEvent::MouseMove, on, hovered));
            QVERIFY(shows(QEvent::MouseButtonPress, on, pressed));
            QVERIFY(shows(QEvent::MouseMove, off, pressed));
            QVERIFY(shows(QEvent::MouseButtonRelease, on, hovered));
            QVERIFY(shows(QEvent::MouseButtonPress, on, pressed));
            QVERIFY(shows(QEvent::MouseButtonRelease, off, rests));
            QVERIFY(shows(QEvent::MouseButtonPress, on, pressed));
            QVERIFY(shows(QEvent::Leave, off, rests));
            QVERIFY(shows(QEvent::MouseMove, on, hovered));
            QVERIFY(shows(QEvent::Leave, off, rests));
            QVERIFY(shows(QEvent::MouseButtonPress, on, rests.darker(140)));
            QVERIFY(shows(QEvent::MouseButtonRelease, on, rests));
            QVERIFY(shows(QEvent::MouseButtonPress, off, rests));
        }
    }

    void paintsAtAllSizes()
    {
        Bar bar;
        bar.resize(16, 100);
        QCOMPARE(bar.orientation(), Qt::Vertical);
        COMPARE_PICTURES(snapshot(bar), expected(bar, Qt::transparent, QColor("#717582")));
        QVERIFY(repaints(bar, [&] { bar.setBackGroudColor(Qt::green); }));
        QVERIFY(repaints(bar, [&] { bar.setSliderColor(Qt::red); }));
        for (int width = 1; width < 8; ++width)
            for (const int height : {1, 3, 4, 5, 60}) {
                bar.resize(width, height);
                COMPARE_PICTURES(snapshot(bar), expected(bar, Qt::green, Qt::red));
            }
    }

    void scrollsLikeAStockOne()
    {
        const QVector<int> values = scrolled(new ZScrollBar);
        QVERIFY(values.size() > 8);
        QCOMPARE(values, scrolled(new QScrollBar));
    }
};

QTEST_MAIN(TestZScrollBar)
#include "tst_zscrollbar.moc"
