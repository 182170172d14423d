#include "ztoastdialog.h"

#include "announcement_p.h"
#include "execonce_p.h"
#include "widgetlength_p.h"
#include "zclicklabel.h"
#include "zsvgwidget.h"

#include <QTimer>
#include <QVBoxLayout>

namespace ZIRVOUI {

const QString CONFIRM_PATH = QStringLiteral(":/resource/common/tip_svg/tip_ok.svg");
const QString PROMPT_PATH = QStringLiteral(":/resource/common/tip_svg/tip_info.svg");
const QString WARRING_PATH = QStringLiteral(":/resource/common/tip_svg/tip_warning.svg");
const QString ERROR_PATH = QStringLiteral(":/resource/common/tip_svg/tip_error.svg");

ZToastDialog::ZToastDialog(ToastType type, const QString &text, QWidget *parent)
    : ZBaseDialog(parent)
    , m_icon(new ZSvgWidget(this))
    , m_label(new ZClickLabel(this))
{
    m_label->QLabel::setText(text);
    m_label->setAlignment(Qt::AlignCenter);
    m_label->setWordWrap(true);

    auto *content = new QVBoxLayout;
    content->addStretch();
    content->addWidget(m_icon, 0, Qt::AlignHCenter);
    content->addStretch();
    content->addWidget(m_label, 0, Qt::AlignHCenter);
    content->addStretch();
    setLayout(content);

    setType(type);
}

ZToastDialog::~ZToastDialog() = default;

void ZToastDialog::setType(ToastType type)
{
    switch (type) {
    case ToastConfirm:
        loadImage(CONFIRM_PATH);
        break;
    case ToastPrompt:
        loadImage(PROMPT_PATH);
        break;
    case ToastWarning:
        loadImage(WARRING_PATH);
        break;
    case ToastError:
        loadImage(ERROR_PATH);
        break;
    }
}

void ZToastDialog::setText(QString text)
{
    m_label->setLabelText(text);
}

void ZToastDialog::setDelayMS(int ms)
{
    m_delay = ms;
}

void ZToastDialog::setIcoSize(int width, int height)
{
    m_icon->setFixedSize(widgetLength(width), widgetLength(height));
}

void ZToastDialog::loadImage(QString path)
{
    m_icon->loadSvgImage(path);
}

void ZToastDialog::show()
{
    startCloseTimer();
    QWidget::show();
}

int ZToastDialog::exec()
{
    startCloseTimer();
    return execOnce(*this, m_isExecuting);
}

void ZToastDialog::showEvent(QShowEvent *event)
{
    ZBaseDialog::showEvent(event);
    announceAlert(*this);
}

void ZToastDialog::startCloseTimer()
{
    if (m_delay >= 0)
        QTimer::singleShot(m_delay, this, &QWidget::close);
}

} // namespace ZIRVOUI
