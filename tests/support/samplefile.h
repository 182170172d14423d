#ifndef SAMPLEFILE_H
#define SAMPLEFILE_H

#include <QTemporaryDir>

/*! A picture file that a test may rewrite, with a name of the test's choosing. */
class SampleFile
{
public:
    explicit SampleFile(const QString &name)
        : m_path(m_folder.filePath(name))
    {
    }

    QString path() const { return m_path; }
    void write(const QByteArray &content) const;
    /*! A 20 × 10 SVG: an ellipse on a ground of \a color. */
    void writeSvg(const char *color) const;
    /*! A small file, but of more pixels than a picture is worth. */
    void writeHugePicture() const;
    /*! A pipe instead of a file, which nobody writes to: opening it would wait for ever. */
    void makePipe() const;

private:
    QTemporaryDir m_folder;
    QString m_path;
};

#endif
