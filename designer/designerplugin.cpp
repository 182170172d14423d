#include "designerplugin.h"

#include <CircleProgess>
#include <CircularLoadingWidget>
#include <CommonLabelWidget>
#include <HProgressAnime>
#include <LineEdit>
#include <LoadingWidget>
#include <MaskWidget>
#include <ProgressBar>
#include <QIcon>
#include <QSize>
#include <RotateProgress>
#include <RoundedButton>
#include <SwitchButton>
#include <ZAdjustFontLabel>
#include <ZButton>
#include <ZClickLabel>
#include <ZImageButton>
#include <ZRadioButton>
#include <ZResizableLabel>
#include <ZScrollBar>
#include <ZSlider>
#include <ZSvgWidget>
#include <ZTextWidget>

using namespace ZIRVOUI;

namespace {

// A new widget of \a size, whose text, if it has one, is its name.
QString newWidgetXml(const QString &className, const QString &name, const QSize &size, bool hasText)
{
    const QString geometry
        = QStringLiteral("<property name=\"geometry\"><rect><x>0</x><y>0</y>"
                         "<width>%1</width><height>%2</height></rect></property>");
    const QString text = QStringLiteral("<property name=\"text\"><string>%1</string></property>");
    const QString properties = geometry.arg(size.width()).arg(size.height());
    return QStringLiteral("<ui language=\"c++\" displayname=\"%1\">"
                          "<widget class=\"%2\" name=\"%3\">%4</widget></ui>")
        .arg(name, className, name.left(1).toLower() + name.mid(1),
             hasText ? properties + text.arg(name) : properties);
}

template <typename Widget>
class Offer : public QDesignerCustomWidgetInterface
{
public:
    Offer(const char *group, const char *toolTip, const QSize &size)
        : m_group(QLatin1String("Zcommonwidgets - ") + QLatin1String(group))
        , m_toolTip(QLatin1String(toolTip))
        , m_size(size)
    {
    }

    QString name() const override { return QLatin1String(Widget::staticMetaObject.className()); }
    QString group() const override { return m_group; }
    QString toolTip() const override { return m_toolTip; }
    QString whatsThis() const override { return m_toolTip; }
    QString includeFile() const override { return bareName().toLower() + QLatin1String(".h"); }
    bool isContainer() const override { return false; }
    QWidget *createWidget(QWidget *parent) override { return new Widget(parent); }

    // A pixmap, since Designer's box of widgets shows no icon that does not know its sizes.
    QIcon icon() const override
    {
        return QIcon(QPixmap(
            QStringLiteral(":/zcommonwidgets/designer/icons/%1.svg").arg(bareName().toLower())));
    }

    QString domXml() const override
    {
        const bool hasText = Widget::staticMetaObject.indexOfProperty("text") >= 0;
        return newWidgetXml(name(), bareName(), m_size, hasText);
    }

private:
    QString bareName() const { return name().section(QLatin1String("::"), -1); }

    QString m_group;
    QString m_toolTip;
    QSize m_size;
};

QList<QDesignerCustomWidgetInterface *> offers()
{
    return {
        new Offer<ZClickLabel>("Labels", "A label that reports taps", QSize(200, 40)),
        new Offer<ZAdjustFontLabel>("Labels", "A label with the largest font that fits",
                                    QSize(200, 40)),
        new Offer<ZResizableLabel>("Labels", "A label that grows with its text", QSize(200, 40)),
        new Offer<CommonLabelWidget>("Labels", "A title, an icon and a text", QSize(120, 120)),
        new Offer<ZTextWidget>("Labels", "An HTML document on a ground", QSize(240, 160)),

        new Offer<ZSvgWidget>("Images", "An icon that blinks and turns", QSize(64, 64)),
        new Offer<MaskWidget>("Images", "A blurred picture behind other widgets", QSize(320, 240)),

        new Offer<ZButton>("Buttons", "A flat push button; a drag is no click", QSize(160, 56)),
        new Offer<RoundedButton>("Buttons", "A colour or a picture in rounded corners",
                                 QSize(160, 56)),
        new Offer<ZImageButton>("Buttons", "A checkable tile with icon, text and sign",
                                QSize(160, 96)),
        new Offer<ZRadioButton>("Buttons", "A radio button for dark screens", QSize(160, 40)),
        new Offer<SwitchButton>("Buttons", "An on/off switch with a sliding knob", QSize(96, 56)),

        new Offer<ProgressBar>("Progress", "A bar with a value", QSize(200, 20)),
        new Offer<CircleProgess>("Progress", "A ring with a value", QSize(120, 120)),
        new Offer<HProgressAnime>("Progress", "A strip that shows activity", QSize(320, 10)),
        new Offer<RotateProgress>("Progress", "Work that goes on and is then done",
                                  QSize(420, 420)),
        new Offer<CircularLoadingWidget>("Progress", "A spinner: a travelling arc",
                                         QSize(120, 120)),
        new Offer<LoadingWidget>("Progress", "A spinner: a comet in a gradient", QSize(120, 120)),

        new Offer<ZSlider>("Range", "A slider to be dragged from anywhere", QSize(200, 40)),
        new Offer<ZScrollBar>("Range", "A scroll bar that darkens under the finger",
                              QSize(16, 160)),

        new Offer<LineEdit>("Input", "A field without a ground that reports its focus",
                            QSize(200, 40)),
    };
}

} // namespace

DesignerPlugin::DesignerPlugin()
    : m_widgets(offers())
{
}

DesignerPlugin::~DesignerPlugin()
{
    qDeleteAll(m_widgets);
}

QList<QDesignerCustomWidgetInterface *> DesignerPlugin::customWidgets() const
{
    return m_widgets;
}
