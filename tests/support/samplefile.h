#ifndef SAMPLEFILE_H
#define SAMPLEFILE_H

#include <QTemporaryDir>

/*! A picture file that a test may rewrite, with a name of the test's choosing. */
class SampleFile
{
public:
    /*! Without \a content there is no file yet. */
    explicit SampleFile(const QString &name, const QByteArray &content = QByteArray());

    QString path() const { return m_path; }
    void write(const QByteArray &content) const;
    /*! A pipe instead of a file, which nobody writes to: opening it would wait for ever. */
    void makePipe() const;

private:
    QTemporaryDir m_folder;
    QString m_path;
};

/*! A 20 × 10 SVG: an ellipse on a ground of \a color. */
QByteArray sampleSvg(const char *color);

/*! Few bytes, but of more pixels than a picture is worth. */
QByteArray hugePicture();

#endif
