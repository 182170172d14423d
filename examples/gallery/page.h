#ifndef PAGE_H
#define PAGE_H

#include "exhibit.h"

#include <QScrollArea>
#include <QScroller>

class QGridLayout;

/*!
 * The exhibits of one folder of widgets; scrolls if they do not fit.
 *
 * A finger scrolls from wherever a widget leaves the press to its parent.  Other widgets keep
 * theirs: no tap waits until it is known not to be a drag.
 */
class Page : public QScrollArea
{
    Q_OBJECT

public:
    explicit Page(const QString &title, QWidget *parent = nullptr);

    QString title() const;
    /*! In the order of adding. */
    QList<Exhibit *> exhibits() const;

    Exhibit *addExhibit(const QString &name, const QString &description, Exhibit::Width width);

    /*! The height at which all exhibits show without scrolling. */
    int fullHeight() const;

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void setDragDistance(int pixels);
    void scrollByFinger(QScroller::Input input, QMouseEvent *event);

    QString m_title;
    QGridLayout *m_grid = nullptr;
    QList<Exhibit *> m_exhibits;
    int m_nextCell = 0;
};

#endif
