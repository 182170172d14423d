#include "row.h"

#include <QGuiApplication>
#include <QIcon>
#include <QLabel>
#include <QMovie>
#include <QSvgRenderer>
#include <zgifwidget.h>
#include <zsvgwidget.h>

using ZIRVOUI::ZGifWidget;
using ZIRVOUI::ZSvgWidget;

namespace {

constexpr QSize IconSize(64, 64);
constexpr int BlinkFrames = 60;
constexpr double DegreesPerFrame = 6;

double blinkOpacity(int frame)
{
    return double(frame % BlinkFrames) / BlinkFrames;
}

QLabel *newPictureLabel(const QPixmap &picture)
{
    auto *label = new QLabel;
    label->setPixmap(picture);
    return label;
}

Row svgRow(const QString &name, const Draw &bare, const Advance &advance)
{
    const QString path = samplePath("bell.svg");
    Row row{name,
            IconSize,
            [=] { return new ZSvgWidget(path); },
            bare,
            [=] { return newPictureLabel(QIcon(path).pixmap(IconSize)); },
            QStringLiteral("background: transparent;"),
            advance};
    row.hasSvg = true;
    return row;
}

void drawBell(QPainter &painter, const QSize &size)
{
    QSvgRenderer(samplePath("bell.svg")).render(&painter, wholeOf(size));
}

Row svg()
{
    const auto bare = [](QPainter &painter, const QSize &size, int) { drawBell(painter, size); };
    return svgRow(QStringLiteral("ZSvgWidget"), bare, {});
}

Row svgBlinking()
{
    const auto bare = [](QPainter &painter, const QSize &size, int frame) {
        painter.setOpacity(blinkOpacity(frame));
        drawBell(painter, size);
    };
    const auto advance = [](QWidget &icon, int frame) {
        static_cast<ZSvgWidget &>(icon).setOpacity(blinkOpacity(frame));
    };
    return svgRow(QStringLiteral("ZSvgWidget, blinking"), bare, advance);
}

Row svgTurning()
{
    const auto bare = [](QPainter &painter, const QSize &size, int frame) {
        const QPoint center(size.width() / 2, size.height() / 2);
        painter.translate(center);
        painter.rotate(frame * DegreesPerFrame);
        painter.translate(-center);
        drawBell(painter, size);
    };
    const auto advance = [](QWidget &icon, int frame) {
        static_cast<ZSvgWidget &>(icon).setRotateAngle(frame * DegreesPerFrame);
    };
    return svgRow(QStringLiteral("ZSvgWidget, turning"), bare, advance);
}

// The widget stores the picture as it has scaled it; that it scales it once more costs nothing.
Row bitmap()
{
    constexpr QSize Size(80, 60);
    const QString path = samplePath("hills.png");
    const QPixmap picture = QPixmap(path).scaled(Size * qApp->devicePixelRatio(),
                                                 Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const auto bare = [=](QPainter &painter, const QSize &size, int) {
        painter.drawPixmap(QRect(QPoint(), size),
                           picture.scaled(size * pixelRatio(painter), Qt::IgnoreAspectRatio,
                                          Qt::SmoothTransformation));
    };
    return {QStringLiteral("ZSvgWidget, bitmap"),     Size,
            [=] { return new ZSvgWidget(path); },     bare,
            [=] { return newPictureLabel(picture); }, QStringLiteral("background: transparent;")};
}

QVector<QPixmap> framesOf(const QString &path)
{
    QMovie movie(path);
    QVector<QPixmap> frames;
    for (int i = 0; i < movie.frameCount() && movie.jumpToFrame(i); ++i)
        frames << movie.currentPixmap();
    return frames;
}

void showFrame(QWidget &label, int frame)
{
    QMovie *movie = static_cast<QLabel &>(label).movie();
    movie->jumpToFrame(frame % movie->frameCount());
}

// Decoding a frame is the film's work, and the same for all of them: they only paint it.
Row gif()
{
    const QString path = samplePath("ball.gif");
    const QVector<QPixmap> frames = framesOf(path);
    const auto library = [=] {
        auto *widget = new ZGifWidget(path);
        widget->movie()->setPaused(true);
        return widget;
    };
    const auto stock = [=] {
        auto *label = new QLabel;
        label->setMovie(new QMovie(path, {}, label));
        label->movie()->start();
        label->movie()->setPaused(true);
        return label;
    };
    Row row{QStringLiteral("ZGifWidget"),
            {120, 120},
            library,
            [=](QPainter &painter, const QSize &, int frame) {
                painter.drawPixmap(QPoint(), frames[frame % frames.size()]);
            },
            stock,
            QStringLiteral("background: transparent;"),
            showFrame,
            showFrame};
    return row;
}

} // namespace

Rows imageRows()
{
    return {svg(), svgBlinking(), svgTurning(), bitmap(), gif()};
}
