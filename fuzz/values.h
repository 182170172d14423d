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
    template <typename Table>
    const auto &oneOf(const Table &table)
    {
        return table[size_t(byte()) % std::size(table)];
    }

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
    QRect geometry() { return {near<QPoint>(), near<QSize>()}; }
    /*! A file: missing, a directory, an SVG, a bitmap, an animation, or damaged. */
    QString path();

private:
    using RadiusType = ZIRVOUI::ZBaseDialog::RadiusType;
    using Direction = ZIRVOUI::ScrollDirection;

    void read(bool &value) { value = byte() & 1; }
    void read(int &value);
    void read(double &value);
    void read(QString &value);
    void read(QColor &value);
    void read(QPixmap &value);
    void read(QBrush &value);
    void read(QPoint &value) { value = {take<int>(), take<int>()}; }
    void read(QSize &value) { value = {take<int>(), take<int>()}; }
    void read(QRect &value);
    void read(QFont &value);
    // Enums without a fixed type hold no more than their bits.
    void read(Qt::CheckState &value) { value = Qt::CheckState(below(4)); }
    void read(Qt::TextFlag &value);
    void read(RadiusType &value) { value = RadiusType(take<int>()); }
    void read(Direction &value) { value = Direction(below(4) ? below(2) : take<int>()); }
    void read(ToastType &value) { value = ToastType(below(4) ? below(4) : take<int>()); }

    // QWidget::width() itself overflows in a widget further away, or larger by a negative size.
    template <typename Extent>
    Extent near()
    {
        constexpr int Furthest = 1 << 25;
        const auto bounded = [&] { return qBound(-Furthest, take<int>(), Furthest); };
        return {bounded(), bounded()};
    }

    const unsigned char *m_next;
    const unsigned char *m_end;
};

#endif
