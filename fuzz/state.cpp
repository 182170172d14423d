// Replays inputs of a class and prints what they leave, to be compared between processors:
// state <folder with a folder of inputs for each class> <folder of pictures>
// A line tells of an input how its picture differs from the one that an earlier run has left in the
// folder, which Qt's own arithmetic makes it do, and the state, which is the same everywhere.

#include "sequence.h"
#include "stage.h"

#include <QDebug>
#include <QDir>
#include <QImage>
#include <QMetaProperty>
#include <cstdio>

namespace {

QString described(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::QPalette: // these have an identity of their own
    case QMetaType::QPixmap:
    case QMetaType::QBrush:
    case QMetaType::QIcon:
    case QMetaType::QCursor:
        return {};
    case QMetaType::Double:
        return qIsNaN(value.toDouble()) ? QStringLiteral("nan")
                                        : QString::number(value.toDouble(), 'g', 17);
    }
    QString text;
    QDebug(&text) << value;
    return text;
}

QString stateOf(const Trial &trial)
{
    QString text;
    QDebug debug(&text);
    debug << trial.emissions;
    if (!trial.widget)
        return text;
    debug << trial.widget->sizeHint() << trial.widget->minimumSizeHint();
    const QMetaObject &type = *trial.widget->metaObject();
    for (int i = 0; i < type.propertyCount(); ++i)
        debug << type.property(i).name() << described(type.property(i).read(trial.widget));
    return text;
}

// Prints how much of the picture is not as before, in percent, and by how many levels at most.
void tellDifference(const QImage &picture, const QImage &earlier)
{
    int changed = 0;
    int most = 0;
    for (int i = 0; i < int(picture.sizeInBytes()); ++i) {
        const int levels = qAbs(picture.constBits()[i] - earlier.constBits()[i]);
        changed += levels > 0;
        most = qMax(most, levels);
    }
    printf("%.1f %d ", 100.0 * changed / double(picture.sizeInBytes()), most);
}

void comparePicture(QWidget &widget, const QString &path)
{
    QImage picture = pictureOf(widget, 1);
    picture.reinterpretAsFormat(QImage::Format_ARGB32); // no file keeps premultiplied colours
    if (!QFile::exists(path) && !picture.save(path))
        qFatal("cannot write %s", qPrintable(path));
    tellDifference(picture, QImage(path));
}

void replay(const Subject &subject, const QString &path, const QDir &pictures)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    const QByteArray bytes = file.readAll();
    Values values(reinterpret_cast<const unsigned char *>(bytes.constData()), size_t(bytes.size()));
    Trial trial(subject, values);
    runSequence(trial, values);
    const QString name = QLatin1String(subject.name) + '-' + QFileInfo(path).fileName();
    const QString state = stateOf(trial); // before it is painted
    printf("%s ", qPrintable(name));
    if (trial.widget)
        comparePicture(*trial.widget, pictures.filePath(name + ".png"));
    else
        printf("0 0 "); // it is gone
    puts(qPrintable(state));
}

} // namespace

int main(int count, char **arguments)
{
    if (count != 3)
        qFatal("usage: state <folder of inputs> <folder of pictures>");
    Stage::open();
    const QDir inputs(QString::fromLocal8Bit(arguments[1]));
    const QDir pictures(QString::fromLocal8Bit(arguments[2]));
    for (const Subject &subject : subjects()) {
        const QDir folder(inputs.filePath(subject.name));
        for (const QFileInfo &input : folder.entryInfoList(QDir::Files, QDir::Name))
            replay(subject, input.filePath(), pictures);
    }
}
