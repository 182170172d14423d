#include "circleprogess.h"
#include "circulardelegate.h"
#include "circularloadingwidget.h"
#include "commonlabelwidget.h"
#include "hprogressanime.h"
#include "imageswitchbutton.h"
#include "ipvalidator.h"
#include "lineedit.h"
#include "loadingwidget.h"
#include "maskwidget.h"
#include "progressbar.h"
#include "rotateprogress.h"
#include "roundedbutton.h"
#include "samples.h"
#include "stage.h"
#include "subject.h"
#include "switchbutton.h"
#include "zadjustfontlabel.h"
#include "zbutton.h"
#include "zgifwidget.h"
#include "zimagebutton.h"
#include "zloadingdialog.h"
#include "zradiobutton.h"
#include "zresizablelabel.h"
#include "zscrollbar.h"
#include "zslider.h"
#include "zsvgwidget.h"
#include "ztextwidget.h"

#include <QVBoxLayout>

using namespace ZIRVOUI;

namespace {

/*! Makes a widget whose constructor takes what the template says, and its parent. */
template <typename Widget, typename... Arguments>
QWidget *make(Values &values, QWidget *parent)
{
    const std::tuple<Arguments...> arguments{values.take<Arguments>()...};
    return std::apply([&](const auto &...all) { return new Widget(all..., parent); }, arguments);
}

/*! A function as a call. */
template <typename Widget, typename Function>
Call call(Function function)
{
    return
        [=](QWidget &widget, Values &values) { function(static_cast<Widget &>(widget), values); };
}

/*! Methods, and functions of a widget and its values. */
template <typename Widget, typename... Methods>
std::vector<Call> calls(Methods... methods)
{
    return {call<Widget>(methods)...};
}

std::vector<Call> operator+(std::vector<Call> list, const std::vector<Call> &more)
{
    list.insert(list.end(), more.begin(), more.end());
    return list;
}

/*! A method that takes the path of a file. */
template <typename Class, typename Result, typename Path>
auto path(Result (Class::*method)(Path))
{
    return [=](Class &widget, Values &values) { (widget.*method)(values.path()); };
}

// Calls addGradientColor(), which takes references to colours; that QGradient warns is documented.
template <typename Widget>
void addStops(Widget &widget, Values &values)
{
    const QColor colors[] = {values.take<QColor>(), values.take<QColor>()};
    QVector<QPair<double, const QColor &>> stops;
    for (int i = values.below(4); i > 0; --i)
        stops.append({values.take<double>(), colors[i % 2]});
    const Stage::Leniency leniency;
    widget.addGradientColor(stops);
}

std::vector<Call> clickLabelCalls()
{
    using W = ZClickLabel;
    return calls<W>(&W::setTextSize, &W::setFontFamily, &W::setFontWeight, &W::setItalic,
                    &W::setFontColor, &W::setPicture, &W::setLabelText, &W::setTextFlag,
                    &W::setRightCornerLabels, &W::setRadius, &W::setBgColor,
                    path(&W::setBgPicturePath));
}

void callPart(CommonLabelWidget &widget, Values &values)
{
    ZClickLabel *const parts[] = {widget.titleLabel(), widget.icoLabel(), widget.textLabel()};
    ZClickLabel *part = parts[values.below(3)];
    values.oneOf(clickLabelCalls())(*part, values);
}

std::vector<Subject> labels()
{
    using Common = CommonLabelWidget;
    using Adjust = ZAdjustFontLabel;
    using Resizable = ZResizableLabel;
    using Scroll = ZScrollLabel;
    using Text = ZTextWidget;
    const auto makeCommon = [](Values &values, QWidget *parent) {
        return new CommonLabelWidget(parent, Qt::Orientation(values.below(4)));
    };
    const auto setPage
        = [](Text &text, Values &) { text.setHtml(QString::fromUtf8(Samples::html())); };
    const auto setPlain = [](Text &text, Values &values) {
        text.textDocument()->setPlainText(values.take<QString>());
    };
    return {
        {"CommonLabelWidget", makeCommon,
         calls<Common>(&Common::setTitleText, &Common::setTitleVisible, &Common::setText,
                       &Common::setTextVisible, &Common::setIconSize,
                       qOverload<const QPixmap &>(&Common::setIcon), &Common::setIcoCornerVisible,
                       &Common::setSpacing, path(qOverload<const QString &>(&Common::setIcon)),
                       callPart)},
        {"ZAdjustFontLabel", make<Adjust, QString>,
         clickLabelCalls()
             + calls<Adjust>(&Adjust::setFontSizeRange, &Adjust::setTextSize,
                             &Adjust::calcFontSize)},
        {"ZClickLabel", make<ZClickLabel, QString>, clickLabelCalls()},
        {"ZResizableLabel", make<Resizable, QString>,
         calls<Resizable>(&Resizable::setMinSize, &Resizable::setMaxSize, &Resizable::setFontColor,
                          &Resizable::setBackgroundColor, &Resizable::paintNormalText,
                          &Resizable::paintRichText)},
        {"ZScrollLabel", make<Scroll, QString>,
         calls<Scroll>(&Scroll::setText, &Scroll::setStep, &Scroll::setSpacing,
                       &Scroll::setFontColor, &Scroll::setScrollDirection, &Scroll::setTimerMsc,
                       &Scroll::setNeedScroll, &Scroll::upateLabelRollingState)},
        {"ZTextWidget", make<Text>,
         calls<Text>(&Text::setHtml, &Text::clearText, &Text::setBackgroundColor, setPage,
                     setPlain)},
    };
}

// A layout that is not taken stays with the caller.
void setNewLayout(ZBaseDialog &dialog, Values &)
{
    auto *layout = new QVBoxLayout;
    dialog.setLayout(layout);
    if (!layout->parent())
        delete layout;
}

std::vector<Call> baseDialogCalls()
{
    using W = ZBaseDialog;
    return calls<W>(&W::setShadowEffectWidth, &W::setShadowEffectColor, &W::setBackGroundColor,
                    &W::setRadius, &W::setRadiusType, qOverload<const QSize &>(&W::setFixedSize),
                    qOverload<int, int>(&W::setFixedSize), &W::setFixedWidth, &W::setFixedHeight,
                    setNewLayout);
}

std::vector<Subject> dialogs()
{
    using Loading = ZLoadingDialog;
    using Toast = ZToastDialog;
    const auto turn = [](Loading &dialog, Values &) { dialog.loadingWidget()->updateRotate(); };
    return {
        {"ZBaseDialog", make<ZBaseDialog>, baseDialogCalls()},
        {"ZLoadingDialog", make<Loading, QString, int>,
         baseDialogCalls()
             + calls<Loading>(&Loading::setInfoText, &Loading::setTimeNum, &Loading::setSpacing,
                              &Loading::show, turn)},
        {"ZToastDialog", make<Toast, ToastType, QString>,
         baseDialogCalls()
             + calls<Toast>(&Toast::setType, &Toast::setText, &Toast::setDelayMS,
                            &Toast::setIcoSize, &Toast::show, path(&Toast::loadImage))},
    };
}

std::vector<Call> circleButtonCalls()
{
    using W = CircleButton;
    return calls<W>(&W::setBorderColor, &W::setBorderWidth, &W::setBackgroundColor,
                    &W::setLongPressRepeat, &W::setLongPressDelayMS, &W::setLongPressIntervalMS,
                    &W::setFontSize, &W::setFontColor, path(&W::loadSvg));
}

std::vector<Subject> buttons()
{
    using Rounded = RoundedButton;
    using Switch = SwitchButton;
    using Image = ZImageButton;
    using Radio = ZRadioButton;
    const auto makeCircle
        = [](Values &values, QWidget *parent) { return new CircleButton(values.path(), parent); };
    const auto makeImageSwitch = [](Values &values, QWidget *parent) {
        return new ImageSwitchButton{values.path(), values.path(), parent};
    };
    const auto makeSwitch
        = [](Values &values, QWidget *parent) { return new Switch(parent, values.take<bool>()); };
    const auto makeImage = [](Values &values, QWidget *parent) {
        return new Image{QStringLiteral("text"), values.path(), values.path(), parent};
    };
    return {
        {"CircleButton", makeCircle, circleButtonCalls()},
        {"ImageSwitchButton", makeImageSwitch,
         circleButtonCalls() + calls<ImageSwitchButton>(&ImageSwitchButton::setOpenState)},
        {"RoundedButton", make<Rounded>,
         calls<Rounded>(&Rounded::setRadius, &Rounded::setBackgroundColor,
                        &Rounded::setBackgroundImage, &Rounded::setBorderWidth,
                        &Rounded::setBorderColor, &Rounded::setFontSize, &Rounded::setFontColor)},
        {"SwitchButton", makeSwitch,
         calls<Switch>(&Switch::setMargin, &Switch::setCheckedBackground,
                       &Switch::setNocheckedBackground, &Switch::setCheckState,
                       &Switch::setTristate, &Switch::setCheckText, &Switch::setNoCheckText,
                       &Switch::setOffset)},
        {"ZButton", make<ZButton, QString>,
         calls<ZButton>(&ZButton::setBackgroundColor, &ZButton::setFontColor, &ZButton::setRadius,
                        &ZButton::setFontSize, &ZButton::setMouseEventToParent)},
        {"ZImageButton", makeImage,
         calls<Image>(&Image::setTextRect, &Image::setIcoRect, &Image::setSignVisible,
                      &Image::setSingSize, &Image::setBgColor, &Image::setBorderColor,
                      &Image::setBorderWidth, &Image::setRadius, &Image::setFontColor,
                      path(&Image::loadIcoImage), path(&Image::loadSignImage),
                      path(&Image::setBgPicture))},
        {"ZRadioButton", make<Radio, QString>,
         calls<Radio>(&Radio::setSpacing, &Radio::setThickness, &Radio::setExternalCircleLineColor,
                      &Radio::setExternalCircleFillColor, &Radio::setInternalCircleFillColor,
                      &Radio::setTextColor)},
    };
}

/*! A method of the arc within a CircularLoadingWidget. */
template <typename Value>
auto ofArc(void (CircularDelegate::*method)(Value))
{
    return [=](CircularLoadingWidget &widget, Values &values) {
        (widget.findChild<CircularDelegate *>()->*method)(values.take<Value>());
    };
}

std::vector<Subject> progress()
{
    using Circle = CircleProgess;
    using Circular = CircularLoadingWidget;
    using Arc = CircularDelegate;
    using Loading = LoadingWidget;
    using Bar = ProgressBar;
    using Rotate = RotateProgress;
    return {
        {"CircleProgess", make<Circle>,
         calls<Circle>(&Circle::setMin, &Circle::setMax, &Circle::setValue, &Circle::setStartAngle,
                       &Circle::setProgressAngle, &Circle::setBorderWidth, &Circle::setBgColor,
                       &Circle::setCircleColor, &Circle::setProgressColor)},
        {"CircularLoadingWidget", make<Circular>,
         calls<Circular>(&Circular::setLineWidth, &Circular::setColor, &Circular::setCirqueColor,
                         ofArc(&Arc::setDashOffset), ofArc(&Arc::setDashLength),
                         ofArc(&Arc::setAngle))},
        {"HProgressAnime", make<HProgressAnime>, {}},
        {"LoadingWidget", make<Loading>,
         calls<Loading>(&Loading::updateRotate, &Loading::start, &Loading::stop, &Loading::setWidth,
                        addStops<Loading>)},
        {"ProgressBar", make<Bar>,
         calls<Bar>(qOverload<double, double>(&Bar::setRange), qOverload<int, int>(&Bar::setRange),
                    &Bar::setMinValue, &Bar::setMaxValue, qOverload<double>(&Bar::setValue),
                    qOverload<int>(&Bar::setValue), &Bar::setPadding, &Bar::setRadius,
                    &Bar::setValueBrush, &Bar::setValueColor, &Bar::setBgColor)},
        {"RotateProgress", make<Rotate>,
         calls<Rotate>(&Rotate::startAnmition, &Rotate::stopAnmition)},
    };
}

void validate(LineEdit &edit, Values &values)
{
    QString text = values.take<QString>();
    int position = values.take<int>();
    if (edit.validator())
        edit.validator()->validate(text, position);
}

std::vector<Subject> others()
{
    using Mask = MaskWidget;
    using Svg = ZSvgWidget;
    using Slider = ZSlider;
    const auto makeGif
        = [](Values &values, QWidget *parent) { return new ZGifWidget(values.path(), parent); };
    const auto makeScrollBar = [](Values &values, QWidget *parent) {
        return new ZScrollBar(Qt::Orientation(1 + values.below(2)), parent);
    };
    const auto makeAddressEdit = [](Values &, QWidget *parent) {
        auto *edit = new LineEdit(parent);
        edit->setValidator(new IPValidator(edit));
        return edit;
    };
    const auto getSvgSize = [](Svg &svg, Values &values) { svg.getSvgSize(values.path()); };
    const auto editCalls
        = calls<LineEdit>(&LineEdit::setupStyle, &LineEdit::setFontSize, &LineEdit::fixUp);
    return {
        {"MaskWidget", make<Mask>,
         calls<Mask>(&Mask::setDistance, &Mask::setOpacity, &Mask::setBlurRadius,
                     &Mask::setPixmap)},
        {"ZGifWidget", makeGif,
         calls<ZGifWidget>(&ZGifWidget::setSize, &ZGifWidget::toDefaultSize)},
        {"ZSvgWidget", make<Svg>,
         calls<Svg>(&Svg::setmPixmap, &Svg::setOpacity, &Svg::startBlinking, &Svg::stopBlinking,
                    &Svg::setRotateAngle, path(&Svg::loadSvgImage), getSvgSize)},
        {"ZScrollBar", makeScrollBar,
         calls<ZScrollBar>(&ZScrollBar::setBackGroudColor, &ZScrollBar::setSliderColor)},
        {"ZSlider", make<Slider>,
         calls<Slider>(&Slider::setGrooveColor, &Slider::setGrooveRadius,
                       &Slider::setGrooveThickness, &Slider::setGrooveSlippedColor,
                       &Slider::setHandleNormalColor, &Slider::setHandlePressColor,
                       &Slider::setValue, &Slider::calcHandlePosition, &Slider::calcHandleValue,
                       &Slider::paintGroove, &Slider::paintHanle, addStops<Slider>)},
        {"LineEdit", make<LineEdit>, editCalls},
        {"IPValidator", makeAddressEdit, editCalls + calls<LineEdit>(validate)},
    };
}

} // namespace

const std::vector<Subject> &subjects()
{
    static const std::vector<Subject> list = [] {
        std::vector<Subject> all;
        for (const auto &folder : {labels(), dialogs(), buttons(), progress(), others()})
            all.insert(all.end(), folder.begin(), folder.end());
        return all;
    }();
    return list;
}

const Subject &subjectOf(const QString &name)
{
    for (const Subject &subject : subjects()) {
        if (name == QLatin1String(subject.name))
            return subject;
    }
    qFatal("no class %s", qPrintable(name));
}
