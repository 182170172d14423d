#ifndef VALUES_H
#define VALUES_H

#include "zbasedialog.h"
#include "zscrolllabel.h"
#include "ztoastdialog.h"

#include <QVariant>

/*! Reads calls and their arguments out of bytes; when these are used up, all is 0. */
class Values
{
public:
    Values(const unsigned char *bytes, size_t count)
        : m_next(bytes)
        , m_end(bytes + count)
    {
    }

    bool isEmpty() const { return m_next == m_end; }
    int byte() { return isEmpty() ? 0 : *m_next++; }
    int below(int count) { return count > 1 ? byte() % count : 0; }

    /*! Any value of the type, the ones that nobody should pass included. */
    template <typename Type>
    Type take()
    {
        Type value = {};
        read(value);
        return value;
    }

    /*! One of \a type for Qt's own properties and slots; invalid if there is no way to make one. */
    QVariant variant(int type);
    /*! A geometry that a QWidget survives. */
    QRect geometry();
    /*! A file: missing, a directory, an SVG, a bitmap, an animation, or damaged. */
    QString path();

private:
    void read(bool &value);
    void read(int &value);
    void read(double &value);
    void read(QString &value);
    void read(QColor &value);
    void read(QBrush &value);
    void read(QPixmap &value);
    void read(QPoint &value);
    void read(QSize &value);
    void read(QRect &value);
    void read(QFont &value);
    void read(Qt::CheckState &value);
    void read(Qt::TextFlag &value);
    void read(ZIRVOUI::ZBaseDialog::RadiusType &value);
    void read(ZIRVOUI::ScrollDirection &value);
    void read(ToastType &value);

    template <typename Extent>
    Extent near();

    const unsigned char *m_next;
    const unsigned char *m_end;
};

#endif
