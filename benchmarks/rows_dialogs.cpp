#include "row.h"

#include <QConicalGradient>
#include <QIcon>
#include <QLabel>
#include <QPainterPath>
#include <QSvgRenderer>
#include <QVBoxLayout>
#include <loadingwidget.h>
#include <zloadingdialog.h>
#include <ztoastdialog.h>

using ZIRVOUI::ZBaseDialog;
using ZIRVOUI::ZLoadingDialog;
using ZIRVOUI::ZToastDialog;

namespace {

constexpr QSize DialogSize(480, 320);
constexpr QSize ToastSize(360, 200);
constexpr QSize IconSize(64, 64);
constexpr QRect Child(200, 150, 40, 20);
constexpr int ShadowWidth = 8;
constexpr int ShadowAlpha = 120;
constexpr int Radius = 20;
constexpr QRgb BodyColor = 0xff3c3c44;
constexpr int RingWidth = 10;
constexpr QRgb HeadColor = 0xff316aff;
constexpr int DegreesPerFrame = 2;
constexpr int FullCircle = 360; // degrees
constexpr int AngleUnits = 16; // of QPainter in a degree

const QString ToastIcon = QStringLiteral(":/resource/common/tip_svg/tip_ok.svg");
const QString ToastText = QStringLiteral("The settings have been stored");
const QString LoadingText = QStringLiteral("Looking for an update");
const QString Sheet
    = QStringLiteral("QFrame#dialog { background: #3c3c44; border: 8px solid rgba(0, 0, 0, 60); "
                     "border-radius: 20px; } QLabel { color: white; }");

void drawDialog(QPainter &painter, const QSize &size)
{
    const auto outline = [&](int inset) {
        return outlineOf(wholeOf(size).adjusted(inset, inset, -inset, -inset), Radius);
    };
    painter.setRenderHint(QPainter::Antialiasing);
    for (int inset = ShadowWidth; inset >= 0; --inset) {
        const int fade = ShadowAlpha / ShadowWidth * (ShadowWidth - inset);
        painter.setPen(QColor(0, 0, 0, ShadowAlpha - fade));
        painter.drawPath(outline(inset));
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillPath(outline(ShadowWidth), QColor(BodyColor));
}

void drawLabel(QPainter &painter, const QRect &rect, const QString &text)
{
    painter.save();
    painter.setClipRect(rect); // as that of a child is
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.setPen(Qt::white);
    painter.drawText(rect, int(Qt::AlignCenter) | Qt::TextWordWrap, text);
    painter.restore();
}

QFrame *newFrame()
{
    auto *frame = new QFrame;
    frame->setObjectName(QStringLiteral("dialog"));
    frame->setFrameStyle(int(QFrame::StyledPanel) | QFrame::Raised);
    return frame;
}

Row dialog()
{
    return {QStringLiteral("ZBaseDialog"),
            DialogSize,
            [] { return new ZBaseDialog; },
            [](QPainter &painter, const QSize &size, int) { drawDialog(painter, size); },
            newFrame,
            Sheet};
}

Row dialogWithChild()
{
    Row row = dialog();
    row.name = QStringLiteral("ZBaseDialog, child ticking");
    row.child = Child;
    return row;
}

ZToastDialog *newToast()
{
    auto *toast = new ZToastDialog(ToastConfirm, ToastText);
    toast->setIcoSize(IconSize.width(), IconSize.height());
    return toast;
}

QWidget *newStockToast()
{
    QFrame *frame = newFrame();
    auto *column = new QVBoxLayout(frame);
    auto *icon = new QLabel;
    icon->setPixmap(QIcon(ToastIcon).pixmap(IconSize));
    column->addWidget(icon, 0, Qt::AlignHCenter);
    column->addWidget(new QLabel(ToastText), 0, Qt::AlignHCenter);
    return frame;
}

Row toast()
{
    const QScopedPointer<QWidget> sample(newToast());
    const QVector<QRect> places = childPlaces(*sample, ToastSize);
    const auto bare = [=](QPainter &painter, const QSize &size, int) {
        drawDialog(painter, size);
        QSvgRenderer(ToastIcon).render(&painter, QRectF(places[0]));
        drawLabel(painter, places[1], ToastText);
    };
    Row row{QStringLiteral("ZToastDialog"), ToastSize, newToast, bare, newStockToast, Sheet};
    row.hasSvg = true;
    return row;
}

ZLoadingDialog *newLoadingDialog()
{
    auto *dialog = new ZLoadingDialog(LoadingText);
    dialog->loadingWidget()->stop();
    return dialog;
}

void drawSpinner(QPainter &painter, const QRect &place, int frame)
{
    const int radius = qMin(place.width(), place.height()) / 2;
    const double middle = radius - RingWidth / 2;
    QConicalGradient gradient(0, 0, 0);
    gradient.setColorAt(0, QColor(HeadColor));
    gradient.setColorAt(1, Qt::white);
    QPainterPath head({double(radius - RingWidth), 0});
    head.arcTo(radius - RingWidth, -RingWidth / 2, RingWidth, RingWidth, 0, FullCircle);

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(place.topLeft() + QPoint(place.width() / 2, place.height() / 2));
    painter.rotate(frame * DegreesPerFrame % FullCircle);
    painter.setPen({gradient, double(RingWidth), Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin});
    painter.drawArc(QRectF(-middle, -middle, 2 * middle, 2 * middle), 0, FullCircle * AngleUnits);
    painter.fillPath(head, QColor(HeadColor));
    painter.restore();
}

QWidget *newStockLoadingDialog()
{
    QFrame *frame = newFrame();
    auto *column = new QVBoxLayout(frame);
    column->addWidget(newBusyBar());
    column->addWidget(new QLabel(LoadingText), 0, Qt::AlignHCenter);
    return frame;
}

Row loadingDialog()
{
    const QScopedPointer<QWidget> sample(newLoadingDialog());
    const QSize size = sample->minimumSize(); // which it has fixed
    const QVector<QRect> places = childPlaces(*sample, size);
    const auto bare = [=](QPainter &painter, const QSize &whole, int frame) {
        drawDialog(painter, whole);
        drawSpinner(painter, places[0], frame);
        drawLabel(painter, places[1], LoadingText);
    };
    const auto advance = [](QWidget &widget, int) {
        static_cast<ZLoadingDialog &>(widget).loadingWidget()->updateRotate();
    };
    return {QStringLiteral("ZLoadingDialog"),
            size,
            newLoadingDialog,
            bare,
            newStockLoadingDialog,
            Sheet,
            advance};
}

Row spinner()
{
    const auto library = [] {
        auto *spinner = new ZIRVOUI::LoadingWidget;
        spinner->stop();
        return spinner;
    };
    const auto advance = [](QWidget &widget, int) {
        static_cast<ZIRVOUI::LoadingWidget &>(widget).updateRotate();
    };
    return {QStringLiteral("LoadingWidget"),
            {100, 100},
            library,
            [](QPainter &painter, const QSize &size, int frame) {
                drawSpinner(painter, {QPoint(), size}, frame);
            },
            newBusyBar,
            QStringLiteral("QProgressBar::chunk { background: #316aff; }"),
            advance};
}

} // namespace

Rows dialogRows()
{
    return {dialog(), dialogWithChild(), toast(), spinner(), loadingDialog()};
}
