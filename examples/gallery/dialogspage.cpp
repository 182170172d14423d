#include "dialogspage.h"

#include "controlpanel.h"
#include "page.h"
#include "pages.h"
#include "zbasedialog.h"
#include "ztoastdialog.h"

#include <QLabel>
#include <QPointer>
#include <QVBoxLayout>

using ZIRVOUI::ZBaseDialog;
using ZIRVOUI::ZToastDialog;

namespace {

constexpr QSize SpecimenSize(204, 96);
constexpr QSize ToastSize(420, 200);
constexpr int SpecimenIcon = 40;
constexpr int ToastIcon = 64;
const char SavedText[] = "Settings saved";

/*! Opens toasts in the middle of the window, one at a time. */
class ToastOpener : public QObject
{
public:
    explicit ToastOpener(QWidget *page)
        : QObject(page)
        , m_page(page)
    {
    }

    void setText(const QString &text) { m_text = text; }
    void setDelay(int ms) { m_delay = ms; }
    void setIconSize(int size) { m_iconSize = size; }

    void show(ToastType type) { newToast(type)->show(); }

    // Taps still arrive while a toast runs exec(): they are not to pile up event loops.
    void exec(ToastType type)
    {
        if (m_executing)
            return;
        m_executing = true;
        newToast(type)->exec();
        m_executing = false;
    }

    void close()
    {
        if (m_toast)
            m_toast->close();
    }

private:
    ZToastDialog *newToast(ToastType type)
    {
        close();
        QWidget *window = m_page->window();
        m_toast = new ZToastDialog(type, m_text, window);
        m_toast->setDelayMS(m_delay);
        m_toast->setIcoSize(m_iconSize, m_iconSize);
        m_toast->setFixedSize(ToastSize);
        m_toast->move(window->rect().center() - m_toast->rect().center());
        connect(m_toast, &QDialog::finished, m_toast, &QObject::deleteLater);
        return m_toast;
    }

    QWidget *m_page;
    QPointer<ZToastDialog> m_toast;
    QString m_text = SavedText;
    int m_delay = 3000; // ms
    int m_iconSize = ToastIcon;
    bool m_executing = false;
};

ZBaseDialog *addDialog(Exhibit *exhibit, const QString &caption, ZBaseDialog::RadiusType type)
{
    auto *label = new QLabel("Content");
    label->setAlignment(Qt::AlignCenter);
    auto *content = new QVBoxLayout;
    content->addWidget(label);

    auto *dialog = new ZBaseDialog;
    dialog->setLayout(content);
    dialog->setRadiusType(type);
    dialog->setFixedSize(SpecimenSize);
    exhibit->addSpecimen(caption, dialog);
    return dialog;
}

void addBaseDialogControls(ControlPanel *controls, ZBaseDialog *dialog)
{
    controls->addNumber("Radius", 0, SpecimenSize.height() / 2, 20,
                        repainting(dialog, &ZBaseDialog::setRadius));
    controls->addColor("Body", {"#3c3c44", "#1f5fae", "#7a2f3a", "#2c6e49", "#dfe3e8"},
                       repainting(dialog, &ZBaseDialog::setBackGroundColor));
    controls->addNumber("Shadow", 0, 16, 8, repainting(dialog, &ZBaseDialog::setShadowEffectWidth));
    controls->addColor("Shadow tint", {"#000000", "#4da3ff", "#ebc232", "#5fd38d", "#ff6b6b"},
                       repainting(dialog, &ZBaseDialog::setShadowEffectColor));
    controls->addNumber("Width", 80, SpecimenSize.width(), SpecimenSize.width(),
                        [=](int width) { dialog->setFixedWidth(width); });
    controls->addNumber("Height", 40, SpecimenSize.height(), SpecimenSize.height(),
                        [=](int height) { dialog->setFixedHeight(height); });
    // At the bottom of the screen, where there is room above for all choices.
    controls->addChoice<ZBaseDialog::RadiusType>("Corners",
                                                 {{"All", ZBaseDialog::AllRadius},
                                                  {"None", ZBaseDialog::NoRadius},
                                                  {"Top left", ZBaseDialog::TopLeftRadius},
                                                  {"Top right", ZBaseDialog::TopRightRadius},
                                                  {"Bottom left", ZBaseDialog::BottomLeftRadius},
                                                  {"Bottom right", ZBaseDialog::BottomRightRadius},
                                                  {"Top", ZBaseDialog::TopRadius},
                                                  {"Bottom", ZBaseDialog::BottomRadius},
                                                  {"Left", ZBaseDialog::LeftRadius},
                                                  {"Right", ZBaseDialog::RightRadius}},
                                                 repainting(dialog, &ZBaseDialog::setRadiusType));
}

void addBaseDialog(Page *page)
{
    Exhibit *exhibit = page->addExhibit(
        "ZBaseDialog", "A body with round corners in a band of shadow", Exhibit::Half);
    ZBaseDialog *live = addDialog(exhibit, "All corners", ZBaseDialog::AllRadius);
    addDialog(exhibit, "Top, coloured body", ZBaseDialog::TopRadius)->setBackGroundColor("#1f5fae");
    addDialog(exhibit, "Left, glow", ZBaseDialog::LeftRadius)->setShadowEffectColor("#c04da3ff");
    addDialog(exhibit, "Square, no shadow", ZBaseDialog::NoRadius)->setShadowEffectWidth(0);
    addBaseDialogControls(exhibit->controls(), live);
}

ZToastDialog *addToast(Exhibit *exhibit, const QString &caption, ToastType type,
                       const QString &text)
{
    auto *toast = new ZToastDialog(type, text);
    toast->setIcoSize(SpecimenIcon, SpecimenIcon);
    toast->setFixedSize(SpecimenSize);
    exhibit->addSpecimen(caption, toast);
    return toast;
}

void addSpecimenControls(ControlPanel *controls, ZToastDialog *toast)
{
    using Action = std::function<void()>;
    controls->addChoice<Action>("Icon",
                                {{"Confirm", [=] { toast->setType(ToastConfirm); }},
                                 {"Prompt", [=] { toast->setType(ToastPrompt); }},
                                 {"Warning", [=] { toast->setType(ToastWarning); }},
                                 {"Error", [=] { toast->setType(ToastError); }},
                                 {"File: bell", [=] { toast->loadImage(":/gallery/bell.svg"); }}},
                                [](const Action &action) { action(); });
}

void addOpenControls(ControlPanel *controls, ToastOpener *opener)
{
    controls->addChoice<int>("Delay",
                             {{"3 s", 3000}, {"1 s", 1000}, {"10 s", 10000}, {"Stay open", -1}},
                             [=](int ms) { opener->setDelay(ms); });
    controls->addActions("show()",
                         {{"Confirm", [=] { opener->show(ToastConfirm); }},
                          {"Prompt", [=] { opener->show(ToastPrompt); }},
                          {"Warning", [=] { opener->show(ToastWarning); }},
                          {"Error", [=] { opener->show(ToastError); }}});
    controls->addActions("exec()",
                         {{"Confirm", [=] { opener->exec(ToastConfirm); }},
                          {"Prompt", [=] { opener->exec(ToastPrompt); }},
                          {"Warning", [=] { opener->exec(ToastWarning); }},
                          {"Error", [=] { opener->exec(ToastError); }}});
    controls->addActions("Open toast", {{"Close", [=] { opener->close(); }}});
}

void addToastDialog(Page *page)
{
    Exhibit *exhibit
        = page->addExhibit("ZToastDialog", "A short message that closes itself", Exhibit::Half);
    ZToastDialog *live = addToast(exhibit, "Confirm", ToastConfirm, SavedText);
    addToast(exhibit, "Prompt", ToastPrompt, "Update available");
    addToast(exhibit, "Warning", ToastWarning, "Battery is low");
    addToast(exhibit, "Error", ToastError, "No connection");

    auto *opener = new ToastOpener(page);
    ControlPanel *controls = exhibit->controls();
    controls->addText("Text", SavedText, [=](const QString &text) {
        live->setText(text);
        opener->setText(text);
    });
    controls->addNumber("Icon size", 16, 96, ToastIcon, [=](int size) {
        const int fitting = qMin(size, SpecimenIcon);
        live->setIcoSize(fitting, fitting);
        opener->setIconSize(size);
    });
    addSpecimenControls(controls, live);
    addOpenControls(controls, opener);
}

} // namespace

void fillDialogsPage(Page *page)
{
    addBaseDialog(page);
    addToastDialog(page);
    addZLoadingDialog(page);
}
