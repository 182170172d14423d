#ifndef ABOUTPAGE_H
#define ABOUTPAGE_H

#include <QWidget>

class Look;

/*! What the device is and what runs on it. */
class AboutPage : public QWidget
{
    Q_OBJECT

public:
    explicit AboutPage(Look *look, QWidget *parent = nullptr);

private:
    QWidget *newDevice();
    QWidget *newFacts();
    QWidget *newNews();

    Look *m_look;
};

#endif
