#include "controlpanel.h"
#include "dialogspage.h"
#include "loadingwidget.h"
#include "look.h"
#include "page.h"
#include "stills.h"
#include "zclicklabel.h"
#include "zloadingdialog.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPointer>

using ZIRVOUI::LoadingWidget;
using ZIRVOUI::ZClickLabel;
using ZIRVOUI::ZLoadingDialog;

namespace {

constexpr QSize MiniatureSize(480, 312);
constexpr int MiniatureColumns = 2;
constexpr int DefaultSpacing = 70;
constexpr int NarrowSpacing = 20;
constexpr int WideRing = 18;
const char WaitText[] = "Please wait";

/*! Closes at a tap, for it covers the buttons that could close it while it stays open. */
class TapClosedDialog : public ZLoadingDialog
{
public:
    TapClosedDialog(const QString &text, int time, QWidget *parent)
        : ZLoadingDialog(text, time, parent)
    {
        // The message would keep the taps to itself.
        for (ZClickLabel *label : findChildren<ZClickLabel *>())
            label->setAttribute(Qt::WA_TransparentForMouseEvents);
    }

protected:
    void mousePressEvent(QMouseEvent *event) override { event->accept(); }
    void mouseReleaseEvent(QMouseEvent *) override { close(); }
};

/*! Opens loading dialogs in the middle of the window, one at a time. */
class LoadingOpener : public QObject
{
public:
    LoadingOpener(QWidget *page, QLabel *picture)
        : QObject(page)
        , m_page(page)
        , m_picture(picture)
    {
        showPicture();
    }

    void setText(const QString &text)
    {
        m_text = text;
        showPicture();
    }

    void setSpacing(int spacing)
    {
        m_spacing = spacing;
        showPicture();
    }

    void setTime(int ms) { m_time = ms; }

    void show() { newDialog()->show(); }

    // Taps beside the dialog still arrive while it runs exec(): they are not to pile up event
    // loops.
    void exec()
    {
        if (m_executing)
            return;
        m_executing = true;
        newDialog()->exec();
        m_executing = false;
    }

private:
    ZLoadingDialog *newDialog()
    {
        if (m_dialog)
            m_dialog->close();
        QWidget *window = m_page->window();
        m_dialog = new TapClosedDialog(m_text, m_time, window);
        m_dialog->setSpacing(m_spacing);
        m_dialog->move(window->rect().center() - m_dialog->rect().center());
        connect(m_dialog, &QDialog::finished, m_dialog, &QObject::deleteLater);
        return m_dialog;
    }

    void showPicture()
    {
        ZLoadingDialog dialog(m_text);
        dialog.setSpacing(m_spacing);
        m_picture->setPixmap(miniature(dialog, MiniatureSize));
    }

    QWidget *m_page;
    QLabel *m_picture;
    QPointer<ZLoadingDialog> m_dialog;
    QString m_text = WaitText;
    int m_spacing = DefaultSpacing;
    int m_time = 3000; // ms
    bool m_executing = false;
};

QLabel *addMiniature(Exhibit *exhibit, const QString &caption)
{
    auto *picture = new QLabel;
    picture->setFixedSize(MiniatureSize);
    exhibit->addSpecimen(caption, picture, MiniatureColumns);
    return picture;
}

QPixmap otherSpinner()
{
    const QColor head(Look::Yellow);
    const QColor tail(Look::Gray);
    ZLoadingDialog dialog("The update is being installed.\nDo not switch the device off.");
    dialog.setSpacing(NarrowSpacing);
    LoadingWidget *spinner = dialog.loadingWidget();
    spinner->setWidth(WideRing);
    spinner->addGradientColor({{0.0, head}, {1.0, tail}});
    return miniature(dialog, MiniatureSize);
}

} // namespace

void addZLoadingDialog(Page *page)
{
    Exhibit *exhibit = page->addExhibit(
        "ZLoadingDialog", "A spinner above a message, shown at half size here; a tap closes it",
        Exhibit::Full);
    auto *opener = new LoadingOpener(page, addMiniature(exhibit, "Message"));
    addMiniature(exhibit, "Narrow spacing, other spinner")->setPixmap(otherSpinner());

    ControlPanel *controls = exhibit->controls();
    controls->addText("Text", WaitText, [=](const QString &text) { opener->setText(text); });
    controls->addNumber("Spacing", 0, 200, DefaultSpacing,
                        [=](int spacing) { opener->setSpacing(spacing); });
    controls->addChoice<int>("Time",
                             {{"3 s", 3000}, {"1 s", 1000}, {"10 s", 10000}, {"Stay open", -1}},
                             [=](int ms) { opener->setTime(ms); });
    controls->addActions(
        "Open", {{"show()", [=] { opener->show(); }}, {"exec()", [=] { opener->exec(); }}});
}
