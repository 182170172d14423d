#include "snippets.h"

#include <LoadingWidget>
#include <QThread>
#include <QWidget>
#include <ZBaseDialog>
#include <ZButton>
#include <ZClickLabel>
#include <ZLoadingDialog>
#include <ZToastDialog>

using namespace ZIRVOUI;

namespace {

/*! Work of some moments. */
class Search : public QThread
{
public:
    explicit Search(QObject *parent)
        : QThread(parent)
    {
    }
    ~Search() override { wait(); }

protected:
    void run() override { msleep(30); }
};

} // namespace

void zBaseDialog(QBoxLayout *page)
{
    QWidget *screen = page->parentWidget();
    //! [ZBaseDialog]
    auto *restart = new ZButton("Restart now");
    auto *content = new QVBoxLayout;
    content->addWidget(new ZClickLabel("The update is installed."), 0, Qt::AlignCenter);
    content->addWidget(restart);

    auto *dialog = new ZBaseDialog(screen);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setShadowEffectWidth(12); // before layout and size, which keep room for it
    dialog->setLayout(content);
    dialog->setFixedSize(320, 160);
    QObject::connect(restart, &ZButton::clicked, dialog, &QDialog::accept);
    dialog->move(screen->rect().center() - dialog->rect().center());
    dialog->show();
    //! [ZBaseDialog]
}

void zLoadingDialog(QBoxLayout *page)
{
    QWidget *screen = page->parentWidget();
    auto *search = new Search(screen);
    //! [ZLoadingDialog]
    auto *busy = new ZLoadingDialog("Searching for networks …", -1, screen);
    busy->setAttribute(Qt::WA_DeleteOnClose);
    busy->setFixedSize(360, 240);
    busy->move(screen->rect().center() - busy->rect().center());
    busy->show();
    QObject::connect(search, &QThread::finished, busy, &QWidget::close);
    search->start();
    //! [ZLoadingDialog]
}

void zToastDialog(QBoxLayout *page)
{
    QWidget *screen = page->parentWidget();
    //! [ZToastDialog]
    auto *toast = new ZToastDialog(ToastConfirm, "Settings saved", screen);
    toast->setAttribute(Qt::WA_DeleteOnClose);
    toast->setDelayMS(2000);
    toast->setFixedSize(320, 160);
    toast->move(screen->rect().center() - toast->rect().center());
    toast->show();
    //! [ZToastDialog]
}
