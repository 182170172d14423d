#ifndef CLOCK_H
#define CLOCK_H

#include <QObject>
#include <QTimer>

/*! The time of day as the user wants to read it, which is kept in the settings. */
class Clock : public QObject
{
    Q_OBJECT

public:
    explicit Clock(QObject *parent = nullptr);

    bool has24Hours() const;
    void set24Hours(bool on);
    QString text() const;

Q_SIGNALS:
    void changed(const QString &text);

private:
    void tick();

    QTimer m_timer;
    QString m_lastText;
};

#endif
