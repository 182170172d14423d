#ifndef SIGNALCOUNTS_H
#define SIGNALCOUNTS_H

#include <QLabel>
#include <QStringList>
#include <QVector>

/*! Shows how often each signal came. */
class SignalCounts : public QLabel
{
    Q_OBJECT

public:
    explicit SignalCounts(QWidget *parent = nullptr);

    /*! Counts \a signal of \a sender, together with all others of the same \a name. */
    template <typename Sender, typename Signal>
    void watch(const QString &name, const Sender *sender, Signal signal)
    {
        const int index = indexOf(name);
        connect(sender, signal, this, [=] { count(index); });
    }

private:
    int indexOf(const QString &name);
    void count(int index);
    void showCounts();

    QStringList m_names;
    QVector<int> m_counts;
};

#endif
