// Sequences of calls, found by libFuzzer: calls --class=ZSlider [options of libFuzzer] [corpus]

#include "sequence.h"
#include "stage.h"

namespace {

const Subject *chosen = nullptr;

} // namespace

extern "C" int LLVMFuzzerInitialize(int *count, char ***arguments)
{
    const QString option = QStringLiteral("--class=");
    for (int i = 1; i < *count; ++i) {
        const QString argument = QString::fromLocal8Bit((*arguments)[i]);
        if (argument.startsWith(option))
            chosen = &subjectOf(argument.mid(option.size()));
    }
    if (!chosen)
        qFatal("no --class= given");
    Stage::open();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, size_t count)
{
    Values values(bytes, count);
    Trial trial(*chosen, values);
    runSequence(trial, values);
    return 0;
}
