#include "circlebutton.h"
#include "imageswitchbutton.h"
#include "roundedbutton.h"
#include "subject.h"
#include "switchbutton.h"
#include "zbutton.h"
#include "zimagebutton.h"
#include "zradiobutton.h"

using namespace ZIRVOUI;

namespace {

std::vector<Call> circleButtonCalls()
{
    using W = CircleButton;
    return calls<W>(&W::setBorderColor, &W::setBorderWidth, &W::setBackgroundColor,
                    &W::setLongPressRepeat, &W::setLongPressDelayMS, &W::setLongPressIntervalMS,
                    &W::setFontSize, &W::setFontColor)
        + std::vector<Call>{callWithPath<W>(&W::loadSvg)};
}

QWidget *makeImageSwitch(Values &values, QWidget *parent)
{
    const QString open = values.path();
    return new ImageSwitchButton(open, values.path(), parent);
}

QWidget *makeImageButton(Values &values, QWidget *parent)
{
    const QString icon = values.path();
    return new ZImageButton(QStringLiteral("text"), icon, values.path(), parent);
}

std::vector<Call> imageButtonCalls()
{
    using W = ZImageButton;
    return calls<W>(&W::setTextRect, &W::setIcoRect, &W::setSignVisible, &W::setSingSize,
                    &W::setBgColor, &W::setBorderColor, &W::setBorderWidth, &W::setRadius,
                    &W::setFontColor)
        + std::vector<Call>{callWithPath<W>(&W::loadIcoImage), callWithPath<W>(&W::loadSignImage),
                            callWithPath<W>(&W::setBgPicture)};
}

std::vector<Call> switchButtonCalls()
{
    using W = SwitchButton;
    return calls<W>(&W::setMargin, &W::setCheckedBackground, &W::setNocheckedBackground,
                    &W::setCheckState, &W::setTristate, &W::setCheckText, &W::setNoCheckText,
                    &W::setOffset);
}

} // namespace

void addButtons(std::vector<Subject> &all)
{
    using Rounded = RoundedButton;
    using Radio = ZRadioButton;
    const auto makeCircle = [](Values &values, QWidget *parent) -> QWidget * {
        return new CircleButton(values.path(), parent);
    };
    const auto makeSwitch = [](Values &values, QWidget *parent) -> QWidget * {
        return new SwitchButton(parent, values.take<bool>());
    };

    all.push_back({"CircleButton", makeCircle, circleButtonCalls()});
    all.push_back(
        {"ImageSwitchButton", makeImageSwitch,
         circleButtonCalls() + calls<ImageSwitchButton>(&ImageSwitchButton::setOpenState)});
    all.push_back(
        {"RoundedButton", make<Rounded>,
         calls<Rounded>(&Rounded::setRadius, &Rounded::setBackgroundColor,
                        &Rounded::setBackgroundImage, &Rounded::setBorderWidth,
                        &Rounded::setBorderColor, &Rounded::setFontSize, &Rounded::setFontColor)});
    all.push_back({"SwitchButton", makeSwitch, switchButtonCalls()});
    all.push_back(
        {"ZButton", make<ZButton, QString>,
         calls<ZButton>(&ZButton::setBackgroundColor, &ZButton::setFontColor, &ZButton::setRadius,
                        &ZButton::setFontSize, &ZButton::setMouseEventToParent)});
    all.push_back({"ZImageButton", makeImageButton, imageButtonCalls()});
    all.push_back(
        {"ZRadioButton", make<Radio, QString>,
         calls<Radio>(&Radio::setSpacing, &Radio::setThickness, &Radio::setExternalCircleLineColor,
                      &Radio::setExternalCircleFillColor, &Radio::setInternalCircleFillColor,
                      &Radio::setTextColor)});
}
