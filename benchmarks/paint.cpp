#include "cputime.h"
#include "stage.h"

#include <QApplication>
#include <QCommandLineParser>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <memory>
#include <vector>

namespace {

constexpr int ComparedFrames = 40;
constexpr int FramesApart = 7; // for a few repaints to see different frames
constexpr double Least = 0.5; // µs, what reading the clock takes: less cannot be told
constexpr double TolerableShare = 0.002; // that pictures may differ where pixels are not whole
constexpr double Percent = 100;
constexpr double Microseconds = 1e6; // of a second

/*! One row on its stages, for all variants to take turns. */
class Company
{
public:
    explicit Company(const Row &row)
    {
        for (const Variant variant : AllVariants)
            m_stages.push_back(std::make_unique<Stage>(row, variant));
    }

    Stage &operator[](int variant) { return *m_stages[size_t(variant)]; }
    int size() const { return int(m_stages.size()); }

private:
    std::vector<std::unique_ptr<Stage>> m_stages;
};

// Advances both alike, so that they stay at the same frame.
Difference pictureDifference(Stage &library, Stage &bare)
{
    Difference worst;
    for (int frame = library.moves() ? ComparedFrames : 1; frame > 0; --frame) {
        library.advance();
        bare.advance();
        const QVector<QImage> actual = library.pictures();
        const QVector<QImage> expected = bare.pictures();
        for (int i = 0; i < actual.size(); ++i) {
            const Difference difference = actual[i] - expected[i];
            worst.largest = qMax(worst.largest, difference.largest);
            worst.share = qMax(worst.share, difference.share);
        }
    }
    return worst;
}

QString toString(const Difference &difference)
{
    return difference.largest == 0 ? QStringLiteral("identical")
                                   : QStringLiteral("%1 of 255").arg(difference.largest);
}

double repaintTime(Stage &stage, bool isAdvanceMeasured, int repeat)
{
    double time = 0;
    for (int i = 0; i < repeat; ++i) {
        double start = cpuTime();
        stage.advance();
        if (!isAdvanceMeasured)
            start = cpuTime();
        stage.repaint();
        time += cpuTime() - start;
    }
    return time / repeat;
}

/*! The median of each variant in microseconds, less that of the empty one. */
QVector<double> repaintTimes(Company &company, const Row &row, int rounds, int repeat)
{
    QVector<QVector<double>> times(company.size());
    for (int round = -1; round < rounds; ++round) { // the first one fills what caches there are
        for (int i = 0; i < company.size(); ++i) {
            const int variant = (i + round + company.size()) % company.size();
            const double time = repaintTime(company[variant], row.isAdvanceMeasured, repeat);
            if (round >= 0)
                times[variant] << time;
        }
    }
    const double empty = median(times[Empty]);
    QVector<double> medians;
    for (const auto &values : times)
        medians << qMax(Least, (median(values) - empty) * Microseconds);
    return medians;
}

/*! The geometric mean of ratios. */
class Mean
{
public:
    void add(double ratio)
    {
        m_sum += std::log(ratio);
        ++m_count;
    }
    double value() const { return m_count > 0 ? std::exp(m_sum / m_count) : 0; }

private:
    double m_sum = 0;
    int m_count = 0;
};

struct Means
{
    Mean bare;
    Mean styled;
    Mean styledWithoutSvg;
};

void measureRow(const Row &row, int rounds, int repeat, Means &means)
{
    Company company(row);
    const Difference difference = pictureDifference(company[Library], company[Bare]);
    const QVector<double> times = repaintTimes(company, row, rounds, repeat);
    const double toBare = times[Library] / times[Bare];
    const double toStyled = times[Library] / times[Styled];
    means.bare.add(toBare);
    means.styled.add(toStyled);
    if (!row.hasSvg)
        means.styledWithoutSvg.add(toStyled);

    std::printf("| %s | %.1f | %.1f | %.1f | %.1f | %.2f | %.2f | %s |\n", qPrintable(row.name),
                times[Library], times[Bare], times[Fusion], times[Styled], toBare, toStyled,
                qPrintable(toString(difference)));
    std::fflush(stdout);
}

void measureRows(const Rows &rows, int rounds, int repeat)
{
    std::printf("| row | library µs | bare µs | Fusion µs | styled µs | library/bare "
                "| library/styled | picture |\n|---|--:|--:|--:|--:|--:|--:|---|\n");
    Means means;
    for (const Row &row : rows)
        measureRow(row, rounds, repeat, means);
    std::printf(
        "\nGeometric means: library/bare %.2f, library/styled %.2f, without the rows with an "
        "SVG %.2f\n",
        means.bare.value(), means.styled.value(), means.styledWithoutSvg.value());
}

/*! Whether the pictures of a row are as close as they have to be at the ratio of the screen. */
bool compareRow(const Row &row)
{
    Stage library(row, Library);
    Stage bare(row, Bare);
    const Difference difference = pictureDifference(library, bare);
    const double ratio = qApp->devicePixelRatio();
    const bool isClose = difference.share <= (ratio > 1 ? TolerableShare : 0);
    std::printf("| %s | %g | %s | %.3f %% |%s\n", qPrintable(row.name), ratio,
                qPrintable(toString(difference)), difference.share * Percent,
                isClose ? "" : " too far apart");
    return isClose;
}

bool compareRows(const Rows &rows)
{
    return std::count_if(rows.begin(), rows.end(), compareRow) == rows.size();
}

void repaintRow(const Row &row, Variant variant, int count)
{
    Stage stage(row, variant);
    stage.advance();
    stage.repaint();
    for (int i = 0; i < count; ++i) {
        for (int frame = 0; stage.moves() && frame < FramesApart; ++frame)
            stage.advance();
        countedRepaint(stage, row.isAdvanceMeasured);
    }
    tellCounted(row, variant, count);
}

void repaintRows(const Rows &rows, const QString &variantName, int count)
{
    for (const Row &row : rows) {
        for (const Variant variant : AllVariants) {
            if (variantName.isEmpty() || variantName == QLatin1String(VariantNames[variant]))
                repaintRow(row, variant, count);
        }
    }
}

Rows rowsNamedLike(const QString &filter)
{
    Rows rows;
    for (const Row &row : allRows()) {
        if (row.name.contains(filter, Qt::CaseInsensitive))
            rows << row;
    }
    return rows;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    setLook();

    QCommandLineParser parser;
    parser.setApplicationDescription("Measures the repaint of every widget.");
    parser.addHelpOption();
    parser.addPositionalArgument("filter", "Only the rows that have this in their names.");
    const QCommandLineOption rounds("rounds", "Rounds of all variants of a row.", "count", "15");
    const QCommandLineOption repeat("repeat", "Repaints in a round.", "count", "20");
    const QCommandLineOption only("repaint", "Only repaint each row, and measure nothing.",
                                  "count");
    const QCommandLineOption variant(
        "variant", "Only repaint library, bare, fusion, styled or empty.", "name");
    const QCommandLineOption pictures(
        "pictures", "Only compare the pictures; fails if one is not what it should be.");
    parser.addOptions({rounds, repeat, only, variant, pictures});
    parser.process(app);

    const Rows rows = rowsNamedLike(parser.positionalArguments().value(0));
    if (rows.isEmpty()) {
        std::fputs("No row has this in its name.\n", stderr);
        return EXIT_FAILURE;
    }
    if (parser.isSet(pictures))
        return compareRows(rows) ? EXIT_SUCCESS : EXIT_FAILURE;
    if (parser.isSet(only))
        repaintRows(rows, parser.value(variant), parser.value(only).toInt());
    else
        measureRows(rows, qMax(1, parser.value(rounds).toInt()),
                    qMax(1, parser.value(repeat).toInt()));
    return EXIT_SUCCESS;
}
