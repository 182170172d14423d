#include "signalcounts.h"

SignalCounts::SignalCounts(QWidget *parent)
    : QLabel(parent)
{
}

int SignalCounts::indexOf(const QString &name)
{
    if (!m_names.contains(name)) {
        m_names.append(name);
        m_counts.append(0);
        showCounts();
    }
    return m_names.indexOf(name);
}

void SignalCounts::count(int index)
{
    ++m_counts[index];
    showCounts();
}

void SignalCounts::showCounts()
{
    QStringList texts;
    for (int i = 0; i < m_names.size(); ++i)
        texts.append(QString("%1 %2").arg(m_counts.at(i)).arg(m_names.at(i)));
    setText(texts.join(",  "));
}
