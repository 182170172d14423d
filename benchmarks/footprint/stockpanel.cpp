// The pages of examples/panel, of stock widgets: what is on them, not what they do.
#include <QApplication>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMovie>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QSlider>
#include <QStackedWidget>
#include <QTextBrowser>

namespace {

constexpr QSize ScreenSize(1280, 800);
constexpr int KeyColumns = 3;
constexpr int Keys = 12;
constexpr int TextLines = 20;

QWidget *newKeypad()
{
    auto *keypad = new QWidget;
    auto *grid = new QGridLayout(keypad);
    for (int i = 0; i < Keys; ++i)
        grid->addWidget(new QPushButton(QString::number(i)), i / KeyColumns, i % KeyColumns);
    return keypad;
}

QWidget *newNetworkPage()
{
    auto *page = new QWidget;
    auto *form = new QFormLayout(page);
    form->addRow("Automatic", new QPushButton);
    for (const char *caption : {"Address", "Mask", "Gateway"})
        form->addRow(caption, new QLineEdit("192.168.1.1"));
    form->addRow(new QPushButton("Apply"));
    form->addRow(newKeypad());
    return page;
}

QWidget *newDisplayPage()
{
    auto *picture = new QLabel;
    picture->setPixmap(QPixmap(":/panel/dusk.png"));
    auto *page = new QWidget;
    auto *form = new QFormLayout(page);
    form->addRow("Brightness", new QSlider(Qt::Horizontal));
    for (const char *theme : {"Dark", "Light", "Dusk"})
        form->addRow(new QRadioButton(theme));
    form->addRow("24-hour clock", new QPushButton);
    form->addRow(picture);
    form->addRow("Blur", new QSlider(Qt::Horizontal));
    return page;
}

QWidget *newStoragePage()
{
    auto *bar = new QProgressBar;
    bar->setValue(bar->maximum() / 2);
    auto *page = new QWidget;
    auto *form = new QFormLayout(page);
    form->addRow(bar);
    form->addRow(new QScrollArea);
    form->addRow(new QPushButton("Scan again"));
    return page;
}

QWidget *newAboutPage()
{
    auto *picture = new QLabel;
    auto *movie = new QMovie(":/panel/orbit.gif", QByteArray(), picture);
    picture->setMovie(movie);
    movie->start();
    auto *text = new QTextBrowser;
    for (int i = 0; i < TextLines; ++i)
        text->append("<b>Fact</b> A line of text");
    auto *page = new QWidget;
    auto *form = new QFormLayout(page);
    form->addRow(picture);
    form->addRow(text);
    return page;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QApplication::setStyle("Fusion");
    QWidget window;
    auto *rail = new QListWidget;
    auto *pages = new QStackedWidget;
    auto *row = new QHBoxLayout(&window);
    row->addWidget(rail);
    row->addWidget(pages, 1);
    for (QWidget *page : {newNetworkPage(), newDisplayPage(), newStoragePage(), newAboutPage()})
        pages->addWidget(page);
    rail->addItems({"Network", "Display", "Storage", "About"});

    // The lock screen is there from the start too.
    QLabel lockScreen("12:00", &window);
    lockScreen.hide();
    auto *keys = new QVBoxLayout(&lockScreen);
    keys->addWidget(newKeypad());

    window.resize(ScreenSize);
    window.show();
    return app.exec();
}
