#ifndef NETWORKPAGE_H
#define NETWORKPAGE_H

#include <QVector>
#include <QWidget>

class Look;
class QBoxLayout;

namespace ZIRVOUI {
class LineEdit;
class ZButton;
} // namespace ZIRVOUI

/*! The addresses of the device, typed on a keypad and checked before they are kept. */
class NetworkPage : public QWidget
{
    Q_OBJECT

public:
    explicit NetworkPage(Look *look, QWidget *parent = nullptr);

private:
    QWidget *newForm();
    QWidget *newKeypad();
    void addField(QBoxLayout *form, const QString &caption, const QString &key,
                  const QString &factory);
    QWidget *newGround(ZIRVOUI::LineEdit *edit);
    void setAutomatic(bool on);
    void apply();
    void save();
    QString fault() const;
    quint32 number(int field) const;

    Look *m_look;
    QVector<ZIRVOUI::LineEdit *> m_fields;
    bool m_automatic;
};

#endif
