#include "paintcounter.h"
#include "picture.h"
#include "samplefile.h"
#include "warnings.h"

#include <QPainterPath>
#include <QSvgRenderer>
#include <QtTest>
#include <zclicklabel.h>

using ZIRVOUI::ZClickLabel;

namespace {

using Signal = void (ZClickLabel::*)();

constexpr int TextSize = 13;
const QString LongText = QStringLiteral("two words <b>&amp;</b>");

struct Look
{
    int radius = 0;
    QColor ground = Qt::transparent;
    bool picture = false;
    bool svg = false;
    bool wrapped = false;
    bool corner = false;
    bool disabled = false;
};

QPixmap stripes()
{
    QPixmap pixmap(4, 3);
    pixmap.fill(Qt::darkCyan);
    QPainter(&pixmap).fillRect(0, 1, 4, 1, Qt::magenta);
    return pixmap;
}

QPainterPath cornerTriangle(const QSize &size, int leg, int radius)
{
    QPainterPath path(QPointF(size.width() - leg, 0));
    if (radius == 0)
        path.lineTo(size.width(), 0);
    else
        path.cubicTo(size.width() - radius, 0, size.width(), 0, size.width(), radius);
    path.lineTo(size.width(), leg);
    path.closeSubpath();
    return path;
}

void drawLabel(QPainter &painter, const Look &look, const QSize &size, int leg, const QString &svg)
{
    const QRect all(QPoint(0, 0), size);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.ground);
    painter.drawRoundedRect(all, look.radius, look.radius);
    painter.setBrush(Qt::NoBrush);

    painter.setOpacity(look.disabled ? 0.3 : 1.0);
    if (look.picture)
        painter.drawPixmap(all, stripes());
    if (look.svg)
        QSvgRenderer(svg).render(&painter, all);
    QFont font;
    font.setPixelSize(TextSize);
    painter.setFont(font);
    painter.setPen(Qt::red);
    painter.drawText(all, Qt::AlignRight | Qt::AlignTop | (look.wrapped ? Qt::TextWordWrap : 0),
                     LongText);
    if (look.corner)
        painter.fillPath(cornerTriangle(size, leg, look.radius), QColor(235, 194, 50));
}

} // namespace

Q_DECLARE_METATYPE(Look)
Q_DECLARE_METATYPE(Signal)

class TestZClickLabel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void paints_data();
    void paints();
    void showsARewrittenSvg();
    void drawsNothingForBrokenFiles_data();
    void drawsNothingForBrokenFiles();
    void survivesValuesThatFontsRefuse();
    void repaintsOnlyForNewValues();
    void hidesForAnEmptyText();
    void reportsTaps();
    void mayBeDeletedInItsSlots_data();
    void mayBeDeletedInItsSlots();
};

void TestZClickLabel::paints_data()
{
    QTest::addColumn<Look>("look");
    Look all;
    all.radius = 7;
    all.ground = QColor(20, 40, 200, 150);
    all.picture = all.svg = all.corner = true;

    QTest::newRow("text alone") << Look();
    Look look;
    look.wrapped = true;
    QTest::newRow("wrapped text") << look;
    look = {};
    look.corner = true;
    QTest::newRow("sharp corner triangle") << look;
    look.radius = 9;
    look.ground = Qt::darkGray;
    QTest::newRow("round corner triangle") << look;
    QTest::newRow("everything") << all;
    all.disabled = true;
    QTest::newRow("everything, disabled") << all;
    all.svg = false;
    QTest::newRow("a picture without SVG, disabled") << all;
}

void TestZClickLabel::paints()
{
    QFETCH(Look, look);
    SampleFile svg(QStringLiteral("Icon.SVG"));
    svg.writeSvg("#4080c0");

    ZClickLabel label(LongText);
    label.setAlignment(Qt::AlignRight | Qt::AlignTop);
    label.setFontColor(Qt::red);
    label.setTextSize(TextSize);
    label.setWordWrap(look.wrapped);
    label.setRadius(look.radius);
    label.setBgColor(look.ground);
    label.setRightCornerLabels(look.corner);
    label.setDisabled(look.disabled);
    if (look.picture)
        label.setPicture(stripes());
    if (look.svg)
        label.setBgPicturePath(svg.path());

    const QHash<int, int> legOfHeight = {{25, 10}, {44, 17}, {10, 4}};
    for (const QSize size : {QSize(91, 25), QSize(80, 44), QSize(64, 10)}) {
        label.resize(size);
        const int leg = legOfHeight.value(size.height());
        COMPARE_PICTURES(snapshot(label), reference(size, [&](QPainter &painter) {
                             drawLabel(painter, look, size, leg, svg.path());
                         }));
    }
}

void TestZClickLabel::showsARewrittenSvg()
{
    SampleFile svg(QStringLiteral("icon.svg"));
    svg.writeSvg("red");
    ZClickLabel label;
    label.setBgPicturePath(svg.path());
    label.resize(20, 10);
    QSignalSpy parses(label.findChild<QSvgRenderer *>(), &QSvgRenderer::repaintNeeded);

    QCOMPARE(snapshot(label).pixelColor(1, 1), QColor(Qt::red));
    snapshot(label);
    QCOMPARE(parses.count(), 1);

    svg.writeSvg("blue");
    QCOMPARE(snapshot(label).pixelColor(1, 1), QColor(Qt::blue));
    QFile::remove(svg.path());
    QCOMPARE(snapshot(label).pixelColor(1, 1), QColor(Qt::transparent));
}

void TestZClickLabel::drawsNothingForBrokenFiles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("no path") << QString() << QByteArray();
    QTest::newRow("missing SVG") << "missing.svg" << QByteArray();
    QTest::newRow("missing bitmap") << "missing.png" << QByteArray();
    QTest::newRow("SVG that is no XML") << "text.svg" << QByteArray("not an image");
    QTest::newRow("SVG cut short") << "cut.svg" << QByteArray("<svg><rect width='9");
    QTest::newRow("other XML") << "page.svg" << QByteArray("<html/>");
    QTest::newRow("compressed under a plain name") << "gz.svg" << QByteArray("\x1f\x8b\x08 broken");
    QTest::newRow("bitmap that is none") << "text.bmp" << QByteArray("not an image");
}

void TestZClickLabel::drawsNothingForBrokenFiles()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    SampleFile file(name);
    if (!content.isEmpty())
        file.write(content);

    ZClickLabel label;
    label.setBgPicturePath(name.isEmpty() ? name : file.path());
    label.resize(30, 20);
    COMPARE_PICTURES(snapshot(label), blankPicture(label.size()));
}

void TestZClickLabel::survivesValuesThatFontsRefuse()
{
    ZClickLabel label;
    label.setTextSize(21);
    label.setFontWeight(75);
    label.setItalic(false, 150);
    const QFont before = label.font();
    QVERIFY(before.italic() && before.bold() && before.pixelSize() == 21);

    for (int value : {-1, 5000, std::numeric_limits<int>::min()}) {
        label.setTextSize(qMin(value, 0));
        label.setFontWeight(value);
        label.setItalic(false, value);
    }
    QCOMPARE(label.font(), before);
}

void TestZClickLabel::repaintsOnlyForNewValues()
{
    ZClickLabel label(QStringLiteral("text"));
    label.show();
    QVERIFY(QTest::qWaitForWindowExposed(&label));
    PaintCounter paints(label);

    label.setRadius(0);
    label.setBgColor(Qt::transparent);
    QCOMPARE(paints.take(), 0);

    const QVector<std::function<void()>> changes = {[&] { label.setRadius(1); },
                                                    [&] { label.setBgColor(Qt::red); },
                                                    [&] { label.setPicture({}); },
                                                    [&] { label.setRightCornerLabels(false); },
                                                    [&] { label.setTextFlag(label.textFlag()); },
                                                    [&] { label.setLabelText(label.text()); },
                                                    [&] { label.setBgPicturePath({}); }};
    for (const auto &change : changes) {
        change();
        QCOMPARE(paints.take(), 1);
    }
}

void TestZClickLabel::hidesForAnEmptyText()
{
    ZClickLabel label(QStringLiteral("text"));
    label.show();
    label.setLabelText({});
    QVERIFY(label.isHidden());
    label.setLabelText(QStringLiteral("more"));
    QVERIFY(label.isHidden());
    QCOMPARE(label.text(), QStringLiteral("more"));
}

void TestZClickLabel::reportsTaps()
{
    ZClickLabel label;
    QStringList seen;
    connect(&label, &ZClickLabel::signal_pressed, [&] { seen << "pressed"; });
    connect(&label, &ZClickLabel::signal_released, [&] { seen << "released"; });
    connect(&label, &ZClickLabel::signal_clicked, [&] { seen << "clicked"; });

    QTest::mouseClick(&label, Qt::RightButton);
    QCOMPARE(seen, QStringList());

    QTest::mousePress(&label, Qt::LeftButton);
    QTest::mouseRelease(&label, Qt::LeftButton, {}, {-50, -50});
    QCOMPARE(seen, QStringList({"pressed", "released", "clicked"}));

    seen.clear();
    QTest::mouseDClick(&label, Qt::LeftButton); // the second press alone
    QCOMPARE(seen, QStringList("pressed"));
}

void TestZClickLabel::mayBeDeletedInItsSlots_data()
{
    QTest::addColumn<Signal>("signal");
    QTest::newRow("pressed") << &ZClickLabel::signal_pressed;
    QTest::newRow("released") << &ZClickLabel::signal_released;
    QTest::newRow("clicked") << &ZClickLabel::signal_clicked;
}

void TestZClickLabel::mayBeDeletedInItsSlots()
{
    QFETCH(Signal, signal);
    QWidget window;
    QPointer<ZClickLabel> label = new ZClickLabel(&window);
    label->resize(50, 50);
    connect(label.data(), signal, [&] { delete label.data(); });

    // Through the window, so that Qt passes on what the label leaves.
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, {20, 20});
    QVERIFY(!label);
}

QTEST_MAIN(TestZClickLabel)
#include "tst_zclicklabel.moc"
