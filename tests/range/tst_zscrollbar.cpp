#include "finger.h"
#include "paintcounter.h"
#include "picture.h"
#include "warnings.h"

#include <QPainterPath>
#include <QScrollArea>
#include <QStyleFactory>
#include <QStyleOptionSlider>
#include <zscrollbar.h>

using ZIRVOUI::ZScrollBar;

namespace {

const QColor Handle("#717582");
const QColor Hovered = Handle.darker(120);
const QColor Pressed = Hovered.darker(140);
const QColor Touched = Handle.darker(140);

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

    void mouse(QEvent::Type type, const QPoint &at)
    {
        const bool moves = type == QEvent::MouseMove;
        QMouseEvent event(type, at, moves ? Qt::NoButton : Qt::LeftButton, Qt::NoButton, {});
        QCoreApplication::sendEvent(this, &event);
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

/*! A window that scrolls a tall content, and where it has been scrolled to. */
struct Scroller : QScrollArea
{
    explicit Scroller(QScrollBar *bar)
    {
        auto *content = new QWidget;
        content->setFixedSize(100, 3000);
        setVerticalScrollBar(bar);
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
        setWidget(content);
        resize(200, 300);
        connect(bar, &QScrollBar::valueChanged, this, [this](int value) { values << value; });
    }

    QVector<int> values;
};

void tap(QScrollBar *bar, const QPoint &at)
{
    Finger(*bar).tap(at);
}

void scrollInAllWays(Scroller &area)
{
    QScrollBar *bar = area.verticalScrollBar();
    const QPoint top(bar->width() / 2, 30), bottom(bar->width() / 2, bar->height() - 30);
    Finger finger(*bar);
    finger.press(top);
    finger.move({top.x(), 90});
    finger.move({top.x() - 30, 150});
    finger.release({top.x() - 30, 150});
    area.values << bar->isSliderDown();
    tap(bar, bottom);
    tap(bar, {top.x(), bar->height() - 3});
    tap(bar, top);
    for (const int key : {Qt::Key_PageDown, Qt::Key_Down, Qt::Key_Home, Qt::Key_End, Qt::Key_Up})
        QTest::keyClick(bar, Qt::Key(key));
    static QTouchDevice *screen = QTest::createTouchDevice();
    const QPoint touched = bar->mapTo(&area, bottom);
    QWindow *window = area.windowHandle();
    QTest::touchEvent(window, screen).press(0, touched, window);
    QTest::touchEvent(window, screen).move(0, touched - QPoint(0, 60), window);
    QTest::touchEvent(window, screen).release(0, touched - QPoint(0, 60), window);
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
        QTest::newRow("style sheet") << QString("Fusion")
                                     << QString("QScrollBar { background: red; width: 31px } "
                                                "QScrollBar::handle { min-height: 40px }");
    }

    void darkensUnderThePointer()
    {
        QFETCH(QString, style);
        QFETCH(QString, sheet);
        const QScopedPointer<QStyle> look(QStyleFactory::create(style));
        for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
            Bar bar(orientation);
            bar.setStyle(look.data());
            bar.setStyleSheet(sheet);
            bar.ensurePolished();
            orientation == Qt::Vertical ? bar.resize(20, 221) : bar.resize(220, 21);
            bar.setSliderColor(Handle);
            bar.setBackGroudColor(QColor(0, 0, 255, 90));
            const auto shows = [&](const QColor &handle) {
                return difference(snapshot(bar), expected(bar, QColor(0, 0, 255, 90), handle));
            };
            const QPoint on = bar.handle().topLeft(), off = bar.rect().center();
            QVERIFY(bar.handle().isValid() && !bar.handle().contains(off));

            QCOMPARE(shows(Handle), QString());
            bar.mouse(QEvent::MouseMove, on);
            QCOMPARE(shows(Hovered), QString());
            bar.mouse(QEvent::MouseButtonPress, on);
            QCOMPARE(shows(Pressed), QString());
            bar.mouse(QEvent::MouseMove, off);
            QCOMPARE(shows(Pressed), QString());
            bar.setValue(0);
            bar.mouse(QEvent::MouseButtonRelease, on);
            QCOMPARE(shows(Hovered), QString());
            bar.mouse(QEvent::MouseButtonPress, on);
            bar.mouse(QEvent::MouseButtonRelease, off);
            QCOMPARE(shows(Handle), QString());
            bar.mouse(QEvent::MouseButtonPress, on);
            QCOMPARE(shows(Pressed), QString());

            QEvent leave(QEvent::Leave);
            QCoreApplication::sendEvent(&bar, &leave);
            QCOMPARE(shows(Handle), QString());
            bar.mouse(QEvent::MouseMove, on);
            QCOMPARE(shows(Hovered), QString());
            QCoreApplication::sendEvent(&bar, &leave);
            bar.mouse(QEvent::MouseButtonPress, on);
            QCOMPARE(shows(Touched), QString());
            bar.mouse(QEvent::MouseButtonRelease, on);
            QCOMPARE(shows(Handle), QString());
            bar.mouse(QEvent::MouseButtonPress, off);
            QCOMPARE(shows(Handle), QString());
        }
    }

    void paintsAtAllSizes()
    {
        Bar bar;
        QVERIFY(repaints(bar, [&] { bar.setBackGroudColor(Qt::green); }));
        QVERIFY(repaints(bar, [&] { bar.setSliderColor(Qt::red); }));
        for (int width = 1; width < 8; ++width) {
            for (const int height : {1, 3, 4, 5, 60}) {
                bar.resize(width, height);
                COMPARE_PICTURES(snapshot(bar), expected(bar, Qt::green, Qt::red));
            }
        }
        Bar plain;
        plain.resize(16, 100);
        QCOMPARE(plain.orientation(), Qt::Vertical);
        COMPARE_PICTURES(snapshot(plain), expected(plain, Qt::transparent, Handle));
    }

    void scrollsLikeAStockOne()
    {
        Scroller stock(new QScrollBar), ours(new ZScrollBar);
        for (Scroller *area : {&stock, &ours}) {
            area->show();
            QVERIFY(QTest::qWaitForWindowExposed(area));
            scrollInAllWays(*area);
        }
        QVERIFY(stock.values.size() > 10);
        QCOMPARE(ours.values, stock.values);
    }
};

QTEST_MAIN(TestZScrollBar)
#include "tst_zscrollbar.moc"
