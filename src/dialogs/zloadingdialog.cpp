#include "zloadingdialog.h"

#include "execonce_p.h"
#include "loadingwidget.h"
#include "zclicklabel.h"

#include <QVBoxLayout>

namespace ZIRVOUI {

namespace {

constexpr QSize BodySize(944, 608);
constexpr QSize SpinnerSize(90, 90);
constexpr int Spacing = 70; // pixels

} // namespace

ZLoadingDialog::ZLoadingDialog(const QString &text, int time, QWidget *parent)
    : ZBaseDialog(parent)
    , m_infoLabel(nullptr)
    , m_time(time)
    , m_layout(new QVBoxLayout)
    , m_loadingWidget(new LoadingWidget(this))
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &QWidget::close);

    setFixedSize(BodySize);
    m_layout->setSpacing(Spacing);
    m_layout->setAlignment(Qt::AlignVCenter);
    m_loadingWidget->setFixedSize(SpinnerSize);
    m_layout->addWidget(m_loadingWidget, 0, Qt::AlignCenter);

    m_infoLabel = new ZClickLabel(this);
    m_infoLabel->setFontColor(Qt::white);
    setInfoText(text);
    m_infoLabel->setAlignment(Qt::AlignCenter);
    m_infoLabel->setWordWrap(true);
    m_layout->addWidget(m_infoLabel);
    setLayout(m_layout);
}

ZLoadingDialog::~ZLoadingDialog() = default;

void ZLoadingDialog::setInfoText(const QString &text)
{
    m_infoLabel->QLabel::setText(text);
}

void ZLoadingDialog::setTimeNum(const int &time)
{
    m_time = time;
}

LoadingWidget *ZLoadingDialog::loadingWidget()
{
    return m_loadingWidget;
}

void ZLoadingDialog::setSpacing(int spacing)
{
    m_layout->setSpacing(qMin(spacing, QWIDGETSIZE_MAX)); // with much more Qt never ends
}

void ZLoadingDialog::show()
{
    startTimer();
    QWidget::show();
}

int ZLoadingDialog::exec()
{
    startTimer();
    return execOnce(*this, m_isExecuting);
}

void ZLoadingDialog::hideEvent(QHideEvent *event)
{
    m_timer.stop();
    QWidget::hideEvent(event);
}

void ZLoadingDialog::startTimer()
{
    if (m_time >= 0)
        m_timer.start(m_time);
}

} // namespace ZIRVOUI
