#include "ipvalidator.h"
#include "lineedit.h"
#include "maskwidget.h"
#include "stops.h"
#include "subject.h"
#include "zgifwidget.h"
#include "zscrollbar.h"
#include "zslider.h"
#include "zsvgwidget.h"

using namespace ZIRVOUI;

namespace {

std::vector<Call> svgCalls()
{
    using W = ZSvgWidget;
    const Call getSize = [](QWidget &widget, Values &values) {
        static_cast<W &>(widget).getSvgSize(values.path());
    };
    return calls<W>(&W::setmPixmap, &W::setOpacity, &W::startBlinking, &W::stopBlinking,
                    &W::setRotateAngle)
        + std::vector<Call>{callWithPath<W>(&W::loadSvgImage), getSize};
}

std::vector<Call> sliderCalls()
{
    using W = ZSlider;
    return calls<W>(&W::setGrooveColor, &W::setGrooveRadius, &W::setGrooveThickness,
                    &W::setGrooveSlippedColor, &W::setHandleNormalColor, &W::setHandlePressColor,
                    &W::setValue, &W::calcHandlePosition, &W::calcHandleValue, &W::paintGroove,
                    &W::paintHanle)
        + std::vector<Call>{addStops<W>};
}

QWidget *makeAddressEdit(Values &, QWidget *parent)
{
    auto *edit = new LineEdit(parent);
    edit->setValidator(new IPValidator(edit));
    return edit;
}

void validate(QWidget &widget, Values &values)
{
    QString text = values.take<QString>();
    int position = values.take<int>();
    const auto *validator = static_cast<LineEdit &>(widget).validator();
    if (validator)
        validator->validate(text, position);
}

} // namespace

void addOthers(std::vector<Subject> &all)
{
    const auto makeGif = [](Values &values, QWidget *parent) -> QWidget * {
        return new ZGifWidget(values.path(), parent);
    };
    const auto makeScrollBar = [](Values &values, QWidget *parent) -> QWidget * {
        return new ZScrollBar(Qt::Orientation(1 + values.below(2)), parent);
    };
    const auto editCalls
        = calls<LineEdit>(&LineEdit::setupStyle, &LineEdit::setFontSize, &LineEdit::fixUp);

    all.push_back({"MaskWidget", make<MaskWidget>,
                   calls<MaskWidget>(&MaskWidget::setDistance, &MaskWidget::setOpacity,
                                     &MaskWidget::setBlurRadius, &MaskWidget::setPixmap)});
    all.push_back({"ZGifWidget", makeGif,
                   calls<ZGifWidget>(&ZGifWidget::setSize, &ZGifWidget::toDefaultSize)});
    all.push_back({"ZSvgWidget", make<ZSvgWidget>, svgCalls()});
    all.push_back({"ZScrollBar", makeScrollBar,
                   calls<ZScrollBar>(&ZScrollBar::setBackGroudColor, &ZScrollBar::setSliderColor)});
    all.push_back({"ZSlider", make<ZSlider>, sliderCalls()});
    all.push_back({"LineEdit", make<LineEdit>, editCalls});
    all.push_back({"IPValidator", makeAddressEdit, editCalls + std::vector<Call>{validate}});
}
