#include "loadingwidget.h"
#include "subject.h"
#include "zbasedialog.h"
#include "zloadingdialog.h"
#include "ztoastdialog.h"

#include <QVBoxLayout>

using namespace ZIRVOUI;

namespace {

using Base = ZBaseDialog;

// A layout that is not taken stays with the caller.
void setNewLayout(QWidget &widget, Values &)
{
    auto *layout = new QVBoxLayout;
    static_cast<Base &>(widget).setLayout(layout);
    if (!layout->parent())
        delete layout;
}

std::vector<Call> baseDialogCalls()
{
    return calls<Base>(&Base::setShadowEffectWidth, &Base::setShadowEffectColor,
                       &Base::setBackGroundColor, &Base::setRadius, &Base::setRadiusType,
                       qOverload<const QSize &>(&Base::setFixedSize),
                       qOverload<int, int>(&Base::setFixedSize), &Base::setFixedWidth,
                       &Base::setFixedHeight)
        + std::vector<Call>{setNewLayout};
}

std::vector<Call> loadingDialogCalls()
{
    using W = ZLoadingDialog;
    const Call turn = [](QWidget &widget, Values &) {
        static_cast<W &>(widget).loadingWidget()->updateRotate();
    };
    return baseDialogCalls() + calls<W>(&W::setInfoText, &W::setTimeNum, &W::setSpacing, &W::show)
        + std::vector<Call>{turn};
}

std::vector<Call> toastCalls()
{
    using W = ZToastDialog;
    return baseDialogCalls()
        + calls<W>(&W::setType, &W::setText, &W::setDelayMS, &W::setIcoSize, &W::show)
        + std::vector<Call>{callWithPath<W>(&W::loadImage)};
}

} // namespace

void addDialogs(std::vector<Subject> &all)
{
    all.push_back({"ZBaseDialog", make<ZBaseDialog>, baseDialogCalls()});
    all.push_back({"ZLoadingDialog", make<ZLoadingDialog, QString, int>, loadingDialogCalls()});
    all.push_back({"ZToastDialog", make<ZToastDialog, ToastType, QString>, toastCalls()});
}
