#include "notices.h"

#include "parts.h"

#include <MaskWidget>
#include <QTimer>
#include <ZClickLabel>
#include <ZLoadingDialog>

using namespace ZIRVOUI;

namespace {

constexpr QSize ToastSize(480, 152);
constexpr int ToastIcon = 48;
constexpr int ToastMargin = 40; // to the bottom of the window

constexpr QSize DialogSize(440, 320);
constexpr int SpinnerGap = 24;
constexpr int BlurShrink = 4; // the blur hides that, and costs a sixteenth
constexpr int BlurRadius = 8;

MaskWidget *newBackdrop(QWidget *window)
{
    const QPixmap picture = window->grab();
    auto *backdrop = new MaskWidget(window);
    backdrop->setGeometry(window->rect());
    backdrop->setDistance(0);
    backdrop->setBlurRadius(BlurRadius);
    backdrop->setPixmap(picture.scaled(picture.size() / BlurShrink));
    backdrop->setObjectName("backdrop");
    return backdrop;
}

} // namespace

void Notices::toast(QWidget *page, ToastType type, const QString &text)
{
    QWidget *window = page->window();
    for (ZToastDialog *former : window->findChildren<ZToastDialog *>())
        former->close();
    auto *toast = new ZToastDialog(type, text, window);
    toast->setObjectName("toast");
    toast->setIcoSize(ToastIcon, ToastIcon);
    toast->setFixedSize(ToastSize);
    auto *label = toast->findChild<ZClickLabel *>();
    label->setTextSize(Parts::TextSize);
    label->setFixedWidth(ToastSize.width()); // or it takes two lines where one would do
    toast->move(page->mapTo(window, page->rect().center()).x() - toast->width() / 2,
                window->height() - toast->height() - ToastMargin);
    QObject::connect(toast, &QDialog::finished, toast, &QObject::deleteLater);
    toast->show();
}

void Notices::wait(QWidget *page, const QString &text, int ms, const std::function<void()> &done)
{
    MaskWidget *backdrop = newBackdrop(page->window());
    auto *dialog = new ZLoadingDialog(text, -1, backdrop);
    dialog->setObjectName("waiting");
    dialog->setFixedSize(DialogSize);
    dialog->setSpacing(SpinnerGap);
    dialog->findChild<ZClickLabel *>()->setTextSize(Parts::TextSize);
    dialog->move(backdrop->rect().center() - dialog->rect().center());

    QObject::connect(dialog, &QDialog::finished, backdrop, &QObject::deleteLater);
    QObject::connect(dialog, &QDialog::finished, page, done);
    QTimer::singleShot(ms, dialog, &QDialog::accept);
    backdrop->show();
    dialog->show();
}
