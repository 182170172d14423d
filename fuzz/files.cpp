// Gives damaged and hostile files, and what is no file, to every class that takes a path or rich
// text, each in a process of its own with little time and memory: files [part of a name]

#include "circlebutton.h"
#include "commonlabelwidget.h"
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
#include <fcntl.h>
#include <memory>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace ZIRVOUI;

namespace {

constexpr unsigned Patience = 20; // seconds, with sanitizers
constexpr long MostMemory = 600; // megabytes: a picture of 64 million pixels and its scaled copy

struct Reader
{
    const char *name;
    std::function<QWidget *(const QString &path)> make;
};

/*! What a reader finds at its path. */
struct Hazard
{
    QByteArray name; // with the suffix of its kind
    std::function<void(const QString &path)> put; // none if the name itself is the path
};

template <typename Widget>
Reader setter(const char *name, void (Widget::*set)(const QString &))
{
    return {name, [set](const QString &path) {
                auto *widget = new Widget(Stage::window());
                (widget->*set)(path);
                return widget;
            }};
}

QString textOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

template <typename Label>
QWidget *labelOf(const QString &path)
{
    auto *label = new Label(Stage::window());
    label->setTextFormat(Qt::RichText);
    label->setText(textOf(path));
    return label;
}

QWidget *pageOf(const QString &path)
{
    auto *page = new ZTextWidget(Stage::window());
    page->setHtml(textOf(path));
    return page;
}

QWidget *toastOf(const QString &path)
{
    auto *toast = new ZToastDialog(ToastConfirm, {}, Stage::window());
    toast->loadImage(path);
    return toast;
}

const std::vector<Reader> Pictures = {
    setter("ZSvgWidget", &ZSvgWidget::loadSvgImage),
    setter("ZClickLabel", &ZClickLabel::setBgPicturePath),
    setter<CommonLabelWidget>("CommonLabelWidget", &CommonLabelWidget::setIcon),
    {"CircleButton", [](auto &path) { return new CircleButton(path, Stage::window()); }},
    {"ImageSwitchButton",
     [](auto &path) { return new ImageSwitchButton(path, path, Stage::window()); }},
    {"ZImageButton, icon and sign",
     [](auto &path) { return new ZImageButton({}, path, path, Stage::window()); }},
    setter("ZImageButton, background", &ZImageButton::setBgPicture),
    {"ZGifWidget", [](auto &path) { return new ZGifWidget(path, Stage::window()); }},
    {"ZToastDialog", toastOf},
};

const std::vector<Reader> Pages = {
    {"ZTextWidget", pageOf},
    {"ZResizableLabel", labelOf<ZResizableLabel>},
    {"ZClickLabel, text", labelOf<ZClickLabel>},
};

/*! Something that has a path and is no file; its function fails with -1, as those of POSIX do. */
struct Special
{
    const char *name;
    int (*make)(const char *path);
};

const Special Specials[] = {
    {"pipe", [](const char *path) { return mkfifo(path, S_IRWXU); }},
    {"silentpipe", [](const char *path) { return mkfifo(path, S_IRWXU) | open(path, O_RDWR); }},
    {"socket", [](const char *path) { return mknod(path, S_IFSOCK | S_IRWXU, 0); }},
    {"zero", [](const char *path) { return symlink("/dev/zero", path); }},
    {"full", [](const char *path) { return symlink("/dev/full", path); }},
    {"null", [](const char *path) { return symlink("/dev/null", path); }},
    {"itself", [](const char *path) { return symlink(path, path); }},
    {"locked", [](const char *path) { return creat(path, 0); }}, // for all but root
};

const QByteArray BarePaths[] = {
    "",
    ".",
    ":/",
    ":/missing.svg",
    ":/missing.png",
    "qrc:/missing.svg",
    "qrc:/missing.png",
    "http://localhost/missing.svg",
    "http://localhost/missing.png",
    {"a\0.svg", 6},
    {"a\0.png", 6},
    QByteArray("x").repeated(5000) + ".svg",
    QByteArray("x").repeated(5000) + ".png",
};

std::vector<Hazard> hazards()
{
    std::vector<Hazard> all;
    for (const Samples::File &file : Samples::damaged())
        all.push_back({file.name, [file](auto &path) { Samples::write(path, file.bytes); }});
    for (const Special &special : Specials) {
        const auto put = [special](const QString &path) {
            if (special.make(qPrintable(path)) < 0)
                qFatal("cannot make %s", qPrintable(path));
        };
        for (const char *suffix : {".svg", ".png"})
            all.push_back({QByteArray(special.name) + suffix, put});
    }
    for (const QByteArray &path : BarePaths)
        all.push_back({path, nullptr});
    return all;
}

std::unique_ptr<QWidget> shown(const Reader &reader, const QString &path)
{
    std::unique_ptr<QWidget> widget(reader.make(path));
    widget->resize(40, 30);
    widget->show();
    return widget;
}

void paint(QWidget &widget)
{
    constexpr int FrameTime = 120; // ms
    widget.sizeHint();
    pictureOf(widget, 1);
    Stage::time().pass(FrameTime, 4);
}

void clear(const QString &path)
{
    QFile::remove(path);
    QDir().rmdir(path);
}

// What is at the path changes between two paints: hostile, whole, gone, a folder, hostile.
void read(const Reader &reader, const QString &path, const Hazard &hazard)
{
    const Stage::Leniency leniency; // what is wrong with a file may be told
    clear(path);
    hazard.put(path);
    const auto widget = shown(reader, path);
    paint(*widget);
    clear(path);
    Samples::write(path, path.endsWith("png") ? Samples::png() : Samples::svg());
    paint(*widget);
    clear(path);
    paint(*widget);
    QDir().mkdir(path);
    paint(*widget);
    clear(path);
    hazard.put(path);
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

bool survives(const Reader &reader, const QString &folder, const Hazard &hazard)
{
    const pid_t child = fork();
    if (child == 0) {
        alarm(Patience);
        if (hazard.put)
            read(reader, folder + '/' + hazard.name, hazard);
        else
            paint(*shown(reader, QString::fromLatin1(hazard.name)));
        _exit(0);
    }
    int status = 0;
    rusage used = {};
    wait4(child, &status, 0, &used);
    const char *fault = verdict(status, used.ru_maxrss);
    if (fault)
        printf("%s %s with \"%.60s\"\n", reader.name, fault, hazard.name.constData());
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
    for (const Hazard &hazard : hazards()) {
        if (count > 1 && !hazard.name.contains(arguments[1]))
            continue;
        for (const Reader &reader : hazard.name.endsWith("html") ? Pages : Pictures) {
            ++cases;
            faults += !survives(reader, folder.path(), hazard);
        }
    }
    printf("%d cases, %d faults\n", cases, faults);
    return faults == 0 && cases > 0 ? 0 : 1;
}
