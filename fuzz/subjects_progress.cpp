#include "circleprogess.h"
#include "circulardelegate.h"
#include "circularloadingwidget.h"
#include "hprogressanime.h"
#include "loadingwidget.h"
#include "progressbar.h"
#include "rotateprogress.h"
#include "stops.h"
#include "subject.h"

using namespace ZIRVOUI;

namespace {

std::vector<Call> circleProgressCalls()
{
    using W = CircleProgess;
    return calls<W>(&W::setMin, &W::setMax, &W::setValue, &W::setStartAngle, &W::setProgressAngle,
                    &W::setBorderWidth, &W::setBgColor, &W::setCircleColor, &W::setProgressColor);
}

std::vector<Call> circularLoadingCalls()
{
    using W = CircularLoadingWidget;
    const auto arc = [](QWidget &widget) { return widget.findChild<CircularDelegate *>(); };
    const Call setOffset
        = [arc](QWidget &w, Values &values) { arc(w)->setDashOffset(values.take<double>()); };
    const Call setLength
        = [arc](QWidget &w, Values &values) { arc(w)->setDashLength(values.take<double>()); };
    const Call setAngle
        = [arc](QWidget &w, Values &values) { arc(w)->setAngle(values.take<int>()); };
    return calls<W>(&W::setLineWidth, &W::setColor, &W::setCirqueColor)
        + std::vector<Call>{setOffset, setLength, setAngle};
}

std::vector<Call> loadingCalls()
{
    using W = LoadingWidget;
    return calls<W>(&W::updateRotate, &W::start, &W::stop, &W::setWidth)
        + std::vector<Call>{addStops<W>};
}

std::vector<Call> progressBarCalls()
{
    using W = ProgressBar;
    return calls<W>(qOverload<double, double>(&W::setRange), qOverload<int, int>(&W::setRange),
                    &W::setMinValue, &W::setMaxValue, qOverload<double>(&W::setValue),
                    qOverload<int>(&W::setValue), &W::setPadding, &W::setRadius, &W::setValueBrush,
                    &W::setValueColor, &W::setBgColor);
}

} // namespace

void addProgress(std::vector<Subject> &all)
{
    using Rotate = RotateProgress;
    all.push_back({"CircleProgess", make<CircleProgess>, circleProgressCalls()});
    all.push_back({"CircularLoadingWidget", make<CircularLoadingWidget>, circularLoadingCalls()});
    all.push_back({"HProgressAnime", make<HProgressAnime>, {}});
    all.push_back({"LoadingWidget", make<LoadingWidget>, loadingCalls()});
    all.push_back({"ProgressBar", make<ProgressBar>, progressBarCalls()});
    all.push_back({"RotateProgress", make<Rotate>,
                   calls<Rotate>(&Rotate::startAnmition, &Rotate::stopAnmition)});
}
