#ifndef SAMPLES_H
#define SAMPLES_H

#include <QByteArray>
#include <QStringList>
#include <vector>

/*! Small files of each kind that the library reads, made in code. */
namespace Samples {

struct File
{
    QByteArray name; // with the suffix of its kind
    QByteArray bytes;
};

QByteArray svg();
QByteArray png();
/*! Two frames of 2 × 2 pixels, for ever. */
QByteArray gif();
QByteArray html();
/*! A gzip container with one stored block. */
QByteArray zipped(const QByteArray &bytes);

/*! The checksum that both gzip and PNG use. */
quint32 crc32(const QByteArray &bytes);

void write(const QString &path, const QByteArray &bytes);
/*! Paths of a sample of each kind, of damaged ones, of a directory, of nothing. */
const QStringList &paths();
/*! The same files each time: random damage to each kind of sample, and the known tricks. */
std::vector<File> damaged();

} // namespace Samples

#endif
