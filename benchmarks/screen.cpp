#include "cputime.h"
#include "movers.h"
#include "rates.h"
#include "row.h"

#include <QApplication>
#include <QCommandLineParser>
#include <cstdio>

namespace {

constexpr QSize ScreenSize(1280, 800);
constexpr Making AllMakings[] = {OfLibrary, OfBareCalls, OfStockWidgets};
constexpr const char *MakingNames[] = {"library", "bare", "stock"};
constexpr int WholeRepaints = 31;
constexpr double Milliseconds = 1000; // of a second

// ---- the screen

constexpr int Columns = 12;
constexpr int GridRows = 15;
constexpr QSize Cell(106, 25);
constexpr int Gap = 4;
constexpr const char *StandingRows[]
    = {"ZClickLabel",  "ZAdjustFontLabel", "ZScrollLabel, standing",
       "ZButton",      "ProgressBar",      "RoundedButton",
       "ZRadioButton", "ZSvgWidget",       "LineEdit"};

/*! A window with widgets at their places, some of which move. */
class Screen : public QWidget
{
public:
    Screen() { setFixedSize(ScreenSize); }

    void add(QWidget *widget, const QRect &place)
    {
        widget->setParent(this);
        widget->setGeometry(place);
    }
    void add(const Mover &mover, const QRect &place)
    {
        add(mover.widget, place);
        m_movers << mover;
    }
    void setMoving(bool isMoving)
    {
        for (const Mover &mover : qAsConst(m_movers))
            isMoving ? mover.start() : mover.stop();
    }

private:
    QVector<Mover> m_movers;
};

QWidget *newStanding(Making making, const Row &row)
{
    if (making == OfLibrary)
        return row.library();
    return making == OfBareCalls ? new Canvas(row.bare) : row.stock();
}

void addStanding(Screen &screen, Making making)
{
    QVector<Row> rows;
    for (const char *name : StandingRows)
        rows << rowNamed(QLatin1String(name));
    for (int i = 0; i < Columns * GridRows; ++i) {
        const QPoint place(i % Columns * Cell.width(), i / Columns * Cell.height());
        screen.add(newStanding(making, rows[i % rows.size()]), {place, Cell - QSize(Gap, Gap)});
    }
}

// 1 + 8 + 3 + 1 + 1 + 3 + 3 are twenty.
void addMoving(Screen &screen, Making making)
{
    screen.add(newTurn(making), {0, 378, 420, 420});
    for (int i = 0; i < 8; ++i)
        screen.add(newSpinner(making), {430 + i * 105, 380, 100, 100});
    for (int i = 0; i < 3; ++i) {
        screen.add(newArc(making), {430 + i * 105, 490, 100, 100});
        screen.add(newMarquee(making), {430 + i * 230, 620, 220, 30});
        screen.add(newStrip(making), {430, 670 + i * 40, 840, 10});
    }
    screen.add(newBlinkingIcon(making), {760, 490, 64, 64});
    screen.add(newFilm(making), {850, 490, 120, 120});
}

// ---- what it costs

void tell(const char *making, const char *state, const Rates &rates)
{
    std::printf("| %s | %s | %.1f | %.0f | %.0f | %.0f |\n", making, state, rates.cpu, rates.paints,
                rates.frames, rates.allocations);
    std::fflush(stdout);
}

double wholeRepaint(QWidget &window)
{
    QVector<double> times;
    for (int i = 0; i < WholeRepaints; ++i) {
        const double start = cpuTime();
        window.repaint();
        times << (cpuTime() - start) * Milliseconds;
    }
    return median(times);
}

/*! Measures a screen in its states and returns the milliseconds of a repaint of all of it. */
double measureScreen(Making making, int ms)
{
    Screen screen;
    addStanding(screen, making);
    addMoving(screen, making);
    screen.show();
    screen.setMoving(true);
    const char *name = MakingNames[making];
    tell(name, "moving", ratesOf(screen, ms));
    screen.hide();
    tell(name, "hidden", ratesOf(screen, ms));
    screen.show();
    runEvents(SettlingTime);
    screen.setMoving(false);
    tell(name, "still", ratesOf(screen, ms));
    return wholeRepaint(screen);
}

void measureScreens(int ms)
{
    std::printf("| screen | state | CPU ms/s | paints/s | frames/s | allocations/s |\n"
                "|---|---|--:|--:|--:|--:|\n");
    QVector<double> repaints;
    for (const Making making : AllMakings)
        repaints << measureScreen(making, ms);
    std::printf("\nA repaint of the whole screen: library %.1f ms, bare %.1f ms, stock %.1f ms\n",
                repaints[OfLibrary], repaints[OfBareCalls], repaints[OfStockWidgets]);
}

Rates spinnerRates(Making making, int count, int ms)
{
    Screen screen;
    for (int i = 0; i < count; ++i)
        screen.add(newSpinner(making), {i % 10 * 105, i / 10 * 105, 100, 100});
    screen.show();
    screen.setMoving(true);
    return ratesOf(screen, ms);
}

void measureSpinners(int ms)
{
    std::printf("\n| spinners | frames/s | of bare calls | CPU ms/s | of bare calls |\n"
                "|--:|--:|--:|--:|--:|\n");
    for (const int count : {1, 5, 20}) {
        const Rates library = spinnerRates(OfLibrary, count, ms);
        const Rates bare = spinnerRates(OfBareCalls, count, ms);
        std::printf("| %d | %.0f | %.0f | %.1f | %.1f |\n", count, library.frames, bare.frames,
                    library.cpu, bare.cpu);
        std::fflush(stdout);
    }
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    setLook();
    QApplication::setQuitOnLastWindowClosed(false);

    QCommandLineParser parser;
    parser.setApplicationDescription("Measures a screen of 200 widgets, 20 of which move.");
    parser.addHelpOption();
    const QCommandLineOption seconds("seconds", "How long each state is looked at.", "count", "3");
    parser.addOption(seconds);
    parser.process(app);

    const int ms = qMax(1, int(parser.value(seconds).toDouble() * Milliseconds));
    measureScreens(ms);
    measureSpinners(ms);
    return EXIT_SUCCESS;
}
