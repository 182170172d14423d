#include "commonlabelwidget.h"
#include "samples.h"
#include "subject.h"
#include "zadjustfontlabel.h"
#include "zclicklabel.h"
#include "zresizablelabel.h"
#include "zscrolllabel.h"
#include "ztextwidget.h"

using namespace ZIRVOUI;

namespace {

std::vector<Call> clickLabelCalls()
{
    using W = ZClickLabel;
    return calls<W>(&W::setTextSize, &W::setFontFamily, &W::setFontWeight, &W::setItalic,
                    &W::setFontColor, &W::setPicture, &W::setLabelText, &W::setTextFlag,
                    &W::setRightCornerLabels, &W::setRadius, &W::setBgColor)
        + std::vector<Call>{callWithPath<W>(&W::setBgPicturePath)};
}

std::vector<Call> commonLabelCalls()
{
    using W = CommonLabelWidget;
    const Call callPart = [](QWidget &widget, Values &values) {
        auto &common = static_cast<W &>(widget);
        ZClickLabel *const parts[] = {common.titleLabel(), common.icoLabel(), common.textLabel()};
        const auto partCalls = clickLabelCalls();
        ZClickLabel *part = parts[values.below(3)];
        partCalls[size_t(values.below(int(partCalls.size())))](*part, values);
    };
    return calls<W>(&W::setTitleText, &W::setTitleVisible, &W::setText, &W::setTextVisible,
                    &W::setIconSize, qOverload<const QPixmap &>(&W::setIcon),
                    &W::setIcoCornerVisible, &W::setSpacing)
        + std::vector<Call>{callWithPath<W>(qOverload<const QString &>(&W::setIcon)), callPart};
}

std::vector<Call> textWidgetCalls()
{
    using W = ZTextWidget;
    const Call setPage = [](QWidget &widget, Values &) {
        static_cast<W &>(widget).setHtml(QString::fromUtf8(Samples::html()));
    };
    const Call setPlain = [](QWidget &widget, Values &values) {
        static_cast<W &>(widget).textDocument()->setPlainText(values.take<QString>());
    };
    return calls<W>(&W::setHtml, &W::clearText, &W::setBackgroundColor)
        + std::vector<Call>{setPage, setPlain};
}

} // namespace

void addLabels(std::vector<Subject> &all)
{
    using Adjust = ZAdjustFontLabel;
    using Resizable = ZResizableLabel;
    using Scroll = ZScrollLabel;
    const auto makeCommon = [](Values &values, QWidget *parent) -> QWidget * {
        return new CommonLabelWidget(parent, Qt::Orientation(values.below(4)));
    };

    all.push_back({"CommonLabelWidget", makeCommon, commonLabelCalls()});
    all.push_back({"ZAdjustFontLabel", make<Adjust, QString>,
                   clickLabelCalls()
                       + calls<Adjust>(&Adjust::setFontSizeRange, &Adjust::setTextSize,
                                       &Adjust::calcFontSize)});
    all.push_back({"ZClickLabel", make<ZClickLabel, QString>, clickLabelCalls()});
    all.push_back({"ZResizableLabel", make<Resizable, QString>,
                   calls<Resizable>(&Resizable::setMinSize, &Resizable::setMaxSize,
                                    &Resizable::setFontColor, &Resizable::setBackgroundColor,
                                    &Resizable::paintNormalText, &Resizable::paintRichText)});
    all.push_back(
        {"ZScrollLabel", make<Scroll, QString>,
         calls<Scroll>(&Scroll::setText, &Scroll::setStep, &Scroll::setSpacing,
                       &Scroll::setFontColor, &Scroll::setScrollDirection, &Scroll::setTimerMsc,
                       &Scroll::setNeedScroll, &Scroll::upateLabelRollingState)});
    all.push_back({"ZTextWidget", make<ZTextWidget>, textWidgetCalls()});
}
