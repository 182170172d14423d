#include "aboutpage.h"

#include "look.h"
#include "parts.h"

#include <QBoxLayout>
#include <QEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QScrollArea>
#include <QSysInfo>
#include <QtMath>
#include <ZAdjustFontLabel>
#include <ZClickLabel>
#include <ZGifWidget>
#include <ZScrollLabel>
#include <ZTextWidget>

using namespace ZIRVOUI;

namespace {

constexpr int SmallestName = 18; // px
constexpr int LargestName = 40; // px
constexpr int NameHeight = 56;
constexpr int NewsHeight = 40;
constexpr int NewsStep = 1; // px
constexpr int NewsInterval = 20; // ms

QString row(const QString &name, const QString &value)
{
    return QString("<tr><td class='name'>%1</td><td>%2</td></tr>").arg(name, value.toHtmlEscaped());
}

QString facts()
{
    return row(AboutPage::tr("System"), QSysInfo::prettyProductName())
        + row(AboutPage::tr("Kernel"), QSysInfo::kernelType() + ' ' + QSysInfo::kernelVersion())
        + row(AboutPage::tr("Processor"), QSysInfo::currentCpuArchitecture())
        + row(AboutPage::tr("Toolkit"), QString("Qt ") + qVersion())
        + row(AboutPage::tr("Display"), QGuiApplication::platformName());
}

QString licences()
{
    return AboutPage::tr(
        "<h3>Licences</h3>"
        "<p>The panel and its widgets are free software under the MIT licence: they may be used, "
        "copied, changed and passed on, for any purpose, as long as the licence goes with them. "
        "They come without any warranty.</p>"
        "<p>The toolkit is used under version 3 of the GNU Lesser General Public License. Whoever "
        "has the device may put another build of the toolkit in its place, and may find out for "
        "that purpose how the two work together.</p>"
        "<p>The system brings the licences of its packages along: each is kept in the folder of "
        "its package's documents.</p>");
}

QString sheetOf(const Theme &theme)
{
    return QString("body { font-size: %1px; color: %2; } h3 { font-size: %1px; } "
                   "td { padding-bottom: 10px; } p { margin-bottom: 10px; } "
                   ".name { color: %3; padding-right: 32px; }")
        .arg(QString::number(Parts::TextSize), QColor(theme.ink).name(),
             QColor(theme.quietInk).name());
}

/*! Keeps a text as high as its document is at the text's width. */
class HeightKeeper : public QObject
{
public:
    explicit HeightKeeper(ZTextWidget *text)
        : QObject(text)
        , m_text(text)
    {
        text->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Resize) {
            m_text->textDocument()->setTextWidth(m_text->width());
            m_text->setMinimumHeight(qCeil(m_text->textDocument()->size().height()));
        }
        return false;
    }

private:
    ZTextWidget *m_text;
};

} // namespace

AboutPage::AboutPage(Look *look, QWidget *parent)
    : QWidget(parent)
    , m_look(look)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(Parts::Gap);
    row->addWidget(newDevice(), 2);
    row->addWidget(newFacts(), 3);

    QBoxLayout *column = Parts::newPage(this, tr("About"));
    column->addLayout(row, 1);
    column->addWidget(newNews());
}

QWidget *AboutPage::newDevice()
{
    auto *picture = new ZGifWidget(":/panel/orbit.gif");
    picture->setObjectName("picture");
    picture->toDefaultSize();
    auto *name = new ZAdjustFontLabel(QSysInfo::machineHostName());
    name->setAlignment(Qt::AlignCenter);
    name->setFontSizeRange(SmallestName, LargestName);
    name->setFixedHeight(NameHeight);
    m_look->dress(name, [](ZAdjustFontLabel *name, const Theme &theme) { //
        name->setFontColor(theme.ink);
    });
    auto *kind = Parts::newCaption(m_look, tr("Wall panel, 10 inches"));

    auto *column = new QVBoxLayout;
    column->addStretch();
    column->addWidget(picture, 0, Qt::AlignHCenter);
    column->addSpacing(Parts::Gap);
    column->addWidget(name);
    column->addWidget(kind, 0, Qt::AlignHCenter);
    column->addStretch();
    return Parts::newCard(m_look, column);
}

QWidget *AboutPage::newFacts()
{
    auto *text = new ZTextWidget;
    new HeightKeeper(text);
    m_look->dress(text, [](ZTextWidget *text, const Theme &theme) {
        text->textDocument()->setDocumentMargin(0);
        text->textDocument()->setDefaultStyleSheet(sheetOf(theme));
        text->setHtml("<body><table>" + facts() + "</table>" + licences() + "</body>");
    });
    QScrollArea *scroller = Parts::newScroller(m_look);
    scroller->setObjectName("facts");
    Parts::setScrolled(scroller, text);

    auto *column = new QVBoxLayout;
    column->addWidget(scroller);
    return Parts::newCard(m_look, column);
}

QWidget *AboutPage::newNews()
{
    auto *news = new ZScrollLabel;
    news->setObjectName("news");
    QFont font = news->font();
    font.setPixelSize(Parts::TextSize);
    news->setFont(font);
    news->setFixedHeight(NewsHeight);
    news->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); // its text may be longer
    news->setStep(NewsStep);
    news->setTimerMsc(NewsInterval);
    news->setText(tr("Clean the screen with a soft, dry cloth. Lock the panel first, so "
                     "that the cloth changes nothing. Updates come over the network at night and "
                     "need no attendance."));
    m_look->dress(news, [](ZScrollLabel *news, const Theme &theme) { //
        news->setFontColor(theme.quietInk);
    });

    auto *row = new QHBoxLayout;
    row->addWidget(news);
    return Parts::newCard(m_look, row);
}
