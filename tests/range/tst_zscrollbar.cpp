#include "widgettest.h"

#include <QStyleFactory>
#include <QStyleOptionSlider>
#include <zscrollbar.h>

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

QImage expected(const Bar &bar, const QColor &track, const QColor &handle, double ratio = 1)
{
    const auto draw = [&](QPainter &painter) {
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
    };
    return reference(bar.size(), draw, ratio);
}

// The values that a bar takes when its handle is dragged, and its track tapped.
QVector<int> scrolled(QScrollBar &&bar)
{
    QVector<int> values;
    QObject::connect(&bar, &QScrollBar::valueChanged, [&](int value) { values << value; });
    bar.setPageStep(100);
    bar.setFixedSize(20, 300);
    bar.show();
    Finger finger(bar);
    finger.press({10, 30});
    finger.move({10, 90});
    values << bar.isSliderDown();
    finger.release({10, 90});
    values << bar.isSliderDown();
    finger.tap({10, 250});
    return values;
}

} // namespace

class TestZScrollBar : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void darkensUnderThePointer_data()
    {
        QTest::addColumn<QString>("style");
        for (const QString &style : QStyleFactory::keys() + QStringList("style sheet"))
            QTest::newRow(qPrintable(style)) << style;
    }

    void darkensUnderThePointer()
    {
        QFETCH(QString, style);
        const QString sheet = "QScrollBar { background: red }"
                              "QScrollBar::handle { min-height: 40px }";
        const QScopedPointer<QStyle> look(QStyleFactory::create(style));
        const QColor track(0, 0, 255, 90), rests("#717582");
        const QColor hovered = rests.darker(120), pressed = hovered.darker(140);
        for (const QSize size : {QSize(220, 21), QSize(20, 221)}) {
            Bar bar(size.width() > size.height() ? Qt::Horizontal : Qt::Vertical);
            bar.setStyle(look.data());
            bar.setStyleSheet(look ? QString() : sheet);
            bar.ensurePolished();
            bar.resize(size);
            bar.setSliderColor(rests);
            bar.setBackGroudColor(track);
            const QPoint on = bar.handle().topLeft(), off = bar.rect().center();
            const auto move = QEvent::MouseMove, leave = QEvent::Leave;
            const auto press = QEvent::MouseButtonPress, release = QEvent::MouseButtonRelease;
            // What the pointer does, where, and the colour that the handle then has.
            const std::tuple<QEvent::Type, QPoint, QColor> steps[]
                = {{move, off, rests},    {move, on, hovered},    {press, on, pressed},
                   {move, off, pressed},  {release, on, hovered}, {press, on, pressed},
                   {release, off, rests}, {press, on, pressed},   {leave, off, rests},
                   {move, on, hovered},   {leave, off, rests},    {press, on, rests.darker(140)},
                   {release, on, rests},  {press, off, rests}};
            for (const auto &[type, at, handle] : steps) {
                const auto button = type == move ? Qt::NoButton : Qt::LeftButton;
                QMouseEvent event(type, at, button, Qt::NoButton, {});
                bar.setValue(0); // a press may have moved the handle
                QCoreApplication::sendEvent(&bar, &event);
                COMPARE_PICTURES(snapshot(bar), expected(bar, track, handle));
            }
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
                bar.setValue(height);
                for (const double ratio : {1.0, 1.5})
                    COMPARE_PICTURES(snapshot(bar, ratio),
                                     expected(bar, Qt::green, Qt::red, ratio));
            }
    }

    void scrollsLikeAStockOne()
    {
        const QVector<int> values = scrolled(ZScrollBar());
        QVERIFY(values.size() == 4);
        QCOMPARE(values, scrolled(QScrollBar()));
    }
};

QTEST_MAIN(TestZScrollBar)
#include "tst_zscrollbar.moc"
