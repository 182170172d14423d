#include "hprogressanime.h"

#include <QPainter>
#include <QVariantAnimation>

namespace ZIRVOUI {

namespace {

constexpr int Period = 1200; // ms
constexpr double GrownAt = 0.2; // of the period
constexpr int BarWidth = 375; // pixels
constexpr int Way = 1200; // pixels

} // namespace

HProgressAnime::HProgressAnime(QWidget *parent)
    : QWidget(parent)
{
    initBarWidthAnima();
    initBarPointAnima();
    for (auto *animation : {m_barWidthAnimation, m_barPointAnimation}) {
        connect(animation, &QVariantAnimation::valueChanged, this,
                QOverload<>::of(&QWidget::update));
    }
}

HProgressAnime::~HProgressAnime() = default;

void HProgressAnime::initBarWidthAnima()
{
    m_barWidthAnimation = new QVariantAnimation(this);
    m_barWidthAnimation->setStartValue(0);
    m_barWidthAnimation->setKeyValueAt(GrownAt, BarWidth);
    m_barWidthAnimation->setEndValue(BarWidth);
    m_barWidthAnimation->setDuration(Period);
    m_barWidthAnimation->setLoopCount(-1);
    m_barWidthAnimation->start();
}

void HProgressAnime::initBarPointAnima()
{
    m_barPointAnimation = new QVariantAnimation(this);
    m_barPointAnimation->setStartValue(0);
    m_barPointAnimation->setKeyValueAt(GrownAt, 0);
    m_barPointAnimation->setEndValue(Way);
    m_barPointAnimation->setDuration(Period);
    m_barPointAnimation->setLoopCount(-1);
    m_barPointAnimation->start();
}

void HProgressAnime::paintEvent(QPaintEvent *)
{
    const int x = m_barPointAnimation->currentValue().toInt();
    const int length = m_barWidthAnimation->currentValue().toInt();

    QPainter painter(this);
    painter.fillRect(rect(), m_backgroundColor);
    painter.fillRect(x, 0, length, height(), m_barColor);
}

} // namespace ZIRVOUI
