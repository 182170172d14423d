#ifndef PAGE_H
#define PAGE_H

#include "exhibit.h"

#include <QScrollArea>

class QGridLayout;

/*! The exhibits of one folder of widgets; scrolls by finger if they do not fit. */
class Page : public QScrollArea
{
    Q_OBJECT

public:
    explicit Page(const QString &title, QWidget *parent = nullptr);

    QString title() const;
    /*! In the order of adding. */
    QList<Exhibit *> exhibits() const;

    Exhibit *addExhibit(const QString &name, const QString &description, Exhibit::Width width);

private:
    void scrollByFinger();

    QString m_title;
    QGridLayout *m_grid = nullptr;
    QList<Exhibit *> m_exhibits;
    int m_nextCell = 0;
};

#endif
