// Gives damaged and hostile files to every class that takes a path or rich text, each in a process
// of its own with little time and memory: files [part of a name]

#include "circlebutton.h"
#include "commonlabelwidget.h"
#include "damage.h"
#include "imageswitchbutton.h"
#include "samples.h"
#include "sequence.h"
#include "stage.h"
#include "virtualtime.h"
#include "zclicklabel.h"
#include "zgifwidget.h"
#include "zimagebutton.h"
#include "zresizablelabel.h"
#include "zsvgwidget.h"
#include "ztextwidget.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <cstdio>
#include <memory>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace ZIRVOUI;

namespace {

constexpr unsigned Patience = 20; // seconds, with sanitizers
constexpr long MostMemory = 600; // megabytes: a picture of 64 million pixels and its scaled copy

struct Reader
{
    const char *name;
    QWidget *(*make)(const QString &path);
};

QString textOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

template <typename Widget, typename Setter>
QWidget *set(Setter setter, const QString &value)
{
    auto *widget = new Widget(Stage::window());
    (widget->*setter)(value);
    return widget;
}

template <typename Label>
QWidget *labelOf(const QString &path)
{
    auto *label = new Label(Stage::window());
    label->setTextFormat(Qt::RichText);
    label->setText(textOf(path));
    return label;
}

const Reader Pictures[] = {
    {"ZSvgWidget",
     [](const QString &path) { return set<ZSvgWidget>(&ZSvgWidget::loadSvgImage, path); }},
    {"ZClickLabel",
     [](const QString &path) { return set<ZClickLabel>(&ZClickLabel::setBgPicturePath, path); }},
    {"CommonLabelWidget",
     [](const QString &path) {
         return set<CommonLabelWidget>(qOverload<const QString &>(&CommonLabelWidget::setIcon),
                                       path);
     }},
    {"CircleButton",
     [](const QString &path) -> QWidget * { return new CircleButton(path, Stage::window()); }},
    {"ImageSwitchButton",
     [](const QString &path) -> QWidget * {
         return new ImageSwitchButton(path, path, Stage::window());
     }},
    {"ZImageButton, icon and sign",
     [](const QString &path) -> QWidget * {
         return new ZImageButton({}, path, path, Stage::window());
     }},
    {"ZImageButton, background",
     [](const QString &path) { return set<ZImageButton>(&ZImageButton::setBgPicture, path); }},
    {"ZGifWidget",
     [](const QString &path) -> QWidget * { return new ZGifWidget(path, Stage::window()); }},
    {"ZToastDialog",
     [](const QString &path) -> QWidget * {
         auto *toast = new ZToastDialog(ToastConfirm, {}, Stage::window());
         toast->loadImage(path);
         return toast;
     }},
};

const Reader Pages[] = {
    {"ZTextWidget",
     [](const QString &path) { return set<ZTextWidget>(&ZTextWidget::setHtml, textOf(path)); }},
    {"ZResizableLabel", labelOf<ZResizableLabel>},
    {"ZClickLabel, text", labelOf<ZClickLabel>},
};

void paint(QWidget &widget)
{
    constexpr int FrameTime = 120; // ms
    widget.sizeHint();
    pictureOf(widget, 1);
    Stage::time().pass(FrameTime, 4);
}

// What is at the path changes between two paints: damaged, whole, gone, back.
void read(const Reader &reader, const QString &path, const DamagedFile &file)
{
    const Stage::Leniency leniency; // what is wrong with a file may be told
    Samples::write(path, file.bytes);
    const std::unique_ptr<QWidget> widget(reader.make(path));
    widget->resize(40, 30);
    widget->show();
    paint(*widget);
    Samples::write(path, path.endsWith("png") ? Samples::png() : Samples::svg());
    paint(*widget);
    QFile::remove(path);
    paint(*widget);
    QDir().mkdir(path);
    paint(*widget);
    QDir().rmdir(path);
    Samples::write(path, file.bytes);
    paint(*widget);
}

const char *verdict(int status, long kilobytes)
{
    if (WIFSIGNALED(status))
        return WTERMSIG(status) == SIGALRM ? "takes endless time" : "is killed";
    if (WEXITSTATUS(status) != 0)
        return "dies";
    return kilobytes / 1024 > MostMemory ? "takes much memory" : nullptr;
}

bool survives(const Reader &reader, const QString &folder, const DamagedFile &file)
{
    const QString path = folder + '/' + file.name;
    QFile::remove(path);
    QDir().rmdir(path);
    const pid_t child = fork();
    if (child == 0) {
        alarm(Patience);
        read(reader, path, file);
        _exit(0);
    }
    int status = 0;
    rusage used = {};
    wait4(child, &status, 0, &used);
    const char *fault = verdict(status, used.ru_maxrss);
    if (fault)
        printf("%s %s with %s\n", reader.name, fault, file.name.constData());
    fflush(stdout);
    return !fault;
}

} // namespace

int main(int count, char **arguments)
{
    Stage::open();
    const QTemporaryDir folder;
    int faults = 0;
    int cases = 0;
    for (const DamagedFile &file : damagedFiles()) {
        const bool isPage = file.name.endsWith("html");
        const auto *begin = isPage ? std::begin(Pages) : std::begin(Pictures);
        const auto *end = isPage ? std::end(Pages) : std::end(Pictures);
        for (const auto *reader = begin; reader != end; ++reader) {
            if (count > 1 && !file.name.contains(arguments[1]))
                continue;
            ++cases;
            faults += !survives(*reader, folder.path(), file);
        }
    }
    printf("%d cases, %d faults\n", cases, faults);
    return faults == 0 && cases > 0 ? 0 : 1;
}
