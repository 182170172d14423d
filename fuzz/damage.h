#ifndef DAMAGE_H
#define DAMAGE_H

#include <QByteArray>
#include <vector>

/*! A file that somebody made to do harm, or that a disk has spoilt. */
struct DamagedFile
{
    QByteArray name; // with the suffix of its kind
    QByteArray bytes;
};

/*! The same files each time: random damage to each kind of sample, and the known tricks. */
std::vector<DamagedFile> damagedFiles();

#endif
