#include "storagepage.h"

#include "look.h"
#include "parts.h"

#include <CircleProgess>
#include <CommonLabelWidget>
#include <ProgressBar>
#include <QBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QScrollArea>
#include <QStorageInfo>
#include <ZButton>
#include <ZClickLabel>
#include <ZScrollLabel>

using namespace ZIRVOUI;

namespace {

constexpr qint64 SmallestVolume = 1000 * 1000; // bytes; the rest is the system's own
constexpr int RingSize = 264;
constexpr int RingWidth = 28;
constexpr int FigureSize = 48; // px
constexpr int BarHeight = 16;
constexpr int RowGap = 10;
constexpr int PathHeight = 32;
constexpr int PathInterval = 30; // ms
constexpr double Full = 100; // percent
constexpr double AlmostFull = 90; // percent
constexpr QRgb WarningColor = 0xfff08a24;

double percentUsed(const QStorageInfo &volume)
{
    const double total = double(volume.bytesTotal());
    return total > 0 ? Full * (total - double(volume.bytesAvailable())) / total : 0;
}

QRgb barColor(double percent, const Theme &theme)
{
    return percent < AlmostFull ? theme.accent : WarningColor;
}

QString dataSize(qint64 bytes)
{
    return QLocale().formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat);
}

QString usage(const QStorageInfo &volume)
{
    return StoragePage::tr("%1 of %2 free")
        .arg(dataSize(volume.bytesAvailable()), dataSize(volume.bytesTotal()));
}

ProgressBar *newBar(Look *look, double percent)
{
    auto *bar = new ProgressBar;
    bar->setFixedHeight(BarHeight);
    bar->setRadius(BarHeight / 2);
    bar->setValueBrush(Qt::NoBrush);
    bar->setValue(percent);
    return look->dress(bar, [percent](ProgressBar *bar, const Theme &theme) {
        bar->setBgColor(theme.field);
        bar->setValueColor(barColor(percent, theme));
    });
}

// The path of a volume may be longer than its row.
ZScrollLabel *newPath(Look *look, const QString &path)
{
    auto *label = new ZScrollLabel(path);
    label->setFixedHeight(PathHeight);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    label->setTimerMsc(PathInterval);
    return look->dress(label, [](ZScrollLabel *label, const Theme &theme) { //
        label->setFontColor(theme.ink);
    });
}

} // namespace

StoragePage::StoragePage(Look *look, QWidget *parent)
    : QWidget(parent)
    , m_look(look)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(Parts::Gap);
    row->addWidget(newSummary(), 2);
    row->addWidget(newList(), 3);
    Parts::newPage(this, tr("Storage"))->addLayout(row, 1);
    scan();
}

QWidget *StoragePage::newSummary()
{
    ZButton *again = Parts::newButton(m_look, tr("Scan again"));
    again->setObjectName("scan");
    connect(again, &ZButton::clicked, this, &StoragePage::scan);

    auto *column = new QVBoxLayout;
    column->addStretch();
    column->addWidget(newRing(), 0, Qt::AlignHCenter);
    column->addStretch();
    column->addWidget(again);
    return Parts::newCard(m_look, column);
}

QWidget *StoragePage::newRing()
{
    m_ring = new CircleProgess;
    m_ring->setObjectName("ring");
    m_ring->setFixedSize(RingSize, RingSize);
    m_ring->setBorderWidth(RingWidth);
    m_figures = new CommonLabelWidget(m_ring);
    m_figures->setGeometry(m_ring->rect());
    m_figures->icoLabel()->hide();
    m_figures->setSpacing(0);
    m_figures->titleLabel()->setTextSize(FigureSize);
    m_figures->textLabel()->setTextSize(Parts::CaptionSize);
    m_look->dress(m_figures, [](CommonLabelWidget *figures, const Theme &theme) {
        figures->titleLabel()->setFontColor(theme.ink);
        figures->textLabel()->setFontColor(theme.quietInk);
    });
    return m_look->dress(m_ring, [](CircleProgess *ring, const Theme &theme) {
        ring->setBgColor(QColor(theme.card));
        ring->setCircleColor(QColor(theme.field));
        ring->setProgressColor(QColor(barColor(ring->value(), theme)));
    });
}

QWidget *StoragePage::newList()
{
    m_list = Parts::newScroller(m_look);
    m_list->setObjectName("volumes");
    auto *column = new QVBoxLayout;
    column->setSpacing(Parts::Gap);
    column->addWidget(Parts::newCaption(m_look, tr("Volumes")));
    column->addWidget(m_list);
    return Parts::newCard(m_look, column);
}

void StoragePage::scan()
{
    showRoot(QStorageInfo::root());
    auto *volumes = new QWidget;
    auto *column = new QVBoxLayout(volumes);
    column->setContentsMargins(0, 0, Parts::Gap, 0);
    column->setSpacing(RowGap);
    for (const QStorageInfo &volume : QStorageInfo::mountedVolumes()) {
        if (volume.isReady() && volume.bytesTotal() >= SmallestVolume)
            addVolume(column, volume);
    }
    column->addStretch();
    Parts::setScrolled(m_list, volumes);
}

void StoragePage::showRoot(const QStorageInfo &root)
{
    const double percent = percentUsed(root);
    m_figures->setTitleText(tr("%1 %").arg(percent, 0, 'f', 0));
    m_figures->setText(tr("%1 free").arg(dataSize(root.bytesAvailable())));
    m_ring->setProgressColor(QColor(barColor(percent, m_look->theme())));
    m_ring->setValue(percent);
}

void StoragePage::addVolume(QBoxLayout *column, const QStorageInfo &volume)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(Parts::Gap);
    row->addWidget(newPath(m_look, volume.rootPath()), 1);
    row->addWidget(Parts::newCaption(m_look, usage(volume)));
    column->addLayout(row);
    column->addWidget(newBar(m_look, percentUsed(volume)));
    column->addSpacing(RowGap);
}
