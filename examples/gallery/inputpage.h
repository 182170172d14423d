#ifndef INPUTPAGE_H
#define INPUTPAGE_H

#include "lineedit.h"

#include <QBrush>

class Exhibit;
class Page;

/*! A field, and what an application draws behind it, since it has no background of its own. */
class Plate : public QWidget
{
    Q_OBJECT

public:
    Plate();

    ZIRVOUI::LineEdit *field() const;
    void setBrush(const QBrush &brush);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    ZIRVOUI::LineEdit *m_field;
    QBrush m_brush;
};

Plate *addPlate(Exhibit *exhibit, const QString &caption, const QString &text);

// The exhibit of the Input page that stands in another file than the page itself.
void addIPValidator(Page *page);

#endif
