#ifndef KEYPAD_H
#define KEYPAD_H

#include <QWidget>

class QGridLayout;

namespace ZIRVOUI {
class CircleButton;
}

/*!
 * Round keys for numbers, and one that deletes, again and again while it is held.
 *
 * The keys leave the focus where it is.
 */
class Keypad : public QWidget
{
    Q_OBJECT

public:
    /*! \a extra is a further key left of the zero, or nothing. */
    explicit Keypad(const QString &extra, QWidget *parent = nullptr);

    /*! An icon has its colours in its file. */
    void setColors(const QColor &key, const QColor &ink, const QString &deleteIcon);

Q_SIGNALS:
    void typed(const QString &character);
    void deleted();

private:
    ZIRVOUI::CircleButton *newKey(const QString &text, const QString &icon);
    void addCharacter(const QString &character, int row, int column);
    void addDelete(int row, int column);

    QGridLayout *m_grid;
    QVector<ZIRVOUI::CircleButton *> m_keys; // the one that deletes is the last
};

#endif
