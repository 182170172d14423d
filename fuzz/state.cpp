// Replays inputs of a class and prints what they leave, to be compared between processors:
// state <folder with a folder of inputs for each class>
// The first hash is the state, equal everywhere; the second the picture, equal up to a level.

#include "sequence.h"
#include "stage.h"

#include <QCryptographicHash>
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
    debug << trial.emissions();
    if (!trial.widget)
        return text;
    debug << trial.widget->sizeHint() << trial.widget->minimumSizeHint();
    const QMetaObject &type = *trial.widget->metaObject();
    for (int i = 0; i < type.propertyCount(); ++i)
        debug << type.property(i).name() << described(type.property(i).read(trial.widget));
    return text;
}

QByteArray hashOf(const QByteArray &bytes)
{
    constexpr int Digits = 16;
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).toHex().left(Digits);
}

QByteArray pictureHash(const Trial &trial)
{
    if (!trial.widget)
        return "gone";
    const QImage image = pictureOf(*trial.widget, 1);
    return hashOf(QByteArray::fromRawData(reinterpret_cast<const char *>(image.constBits()),
                                          int(image.sizeInBytes())));
}

void replay(const Subject &subject, const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    const QByteArray bytes = file.readAll();
    Values values(reinterpret_cast<const unsigned char *>(bytes.constData()), size_t(bytes.size()));
    Trial trial(subject, values);
    runSequence(trial, values);
    const QString state = stateOf(trial);
    printf("%s/%s %s %s\n", subject.name, qPrintable(QFileInfo(path).fileName()),
           hashOf(state.toUtf8()).constData(), pictureHash(trial).constData());
    if (qEnvironmentVariableIsSet("STATE_IN_FULL"))
        printf("%s\n", qPrintable(state));
}

} // namespace

int main(int count, char **arguments)
{
    if (count != 2)
        qFatal("usage: state <folder>");
    Stage::open();
    for (const Subject &subject : subjects()) {
        const QDir folder(QDir(QString::fromLocal8Bit(arguments[1])).filePath(subject.name));
        for (const QFileInfo &input : folder.entryInfoList(QDir::Files, QDir::Name))
            replay(subject, input.filePath());
    }
}
