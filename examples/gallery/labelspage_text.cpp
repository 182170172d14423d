#include "controlpanel.h"
#include "labelspage.h"
#include "look.h"
#include "page.h"
#include "ztextwidget.h"

using ZIRVOUI::ZTextWidget;

namespace {

constexpr QSize TextSize(232, 224);
constexpr QSize LiveSize(488, 224);
constexpr int LiveColumns = 2;

const char Manual[] = "<h3>Filter</h3>"
                      "<p>Change it <b>twice a year</b>, or when the lamp "
                      "<font color='#ebc232'>turns yellow</font>.</p>"
                      "<ol><li>Switch the ventilation off.</li><li>Open the flap and pull the "
                      "filter out.</li><li>Push the <i>new</i> one in, arrow upwards.</li></ol>";
const char Table[]
    = "<h3>Rooms</h3>"
      "<table width='100%' cellpadding='6'>"
      "<tr bgcolor='#1f5fae'><th align='left'>Room</th><th align='right'>°C</th></tr>"
      "<tr><td>Kitchen</td><td align='right'>21.5</td></tr>"
      "<tr><td>Hall</td><td align='right'>18.0</td></tr>"
      "<tr><td>Bath</td><td align='right'>"
      "<font color='#5fd38d'>23.0</font></td></tr></table>";
const char Notes[] = "<h2 align='center'>Notes</h2>"
                     "<p align='justify'>The heating follows the timetable of each room. Whoever "
                     "turns a dial changes the temperature until midnight.</p><ul><li>Eco: 17 °C"
                     "</li><li>Day: 21 °C</li><li>Night: 16 °C</li></ul>";
const char Plain[] = "Without any markup the text stands in one paragraph,\nwhatever its line "
                     "feeds:\n\n1. Switch off\n2. Open\n3. Push in";

ZTextWidget *addText(Exhibit *exhibit, const QString &caption, const QString &html,
                     const QSize &size = TextSize, int columns = 1)
{
    auto *text = new ZTextWidget;
    text->setFixedSize(size);
    text->setBackgroundColor(Look::Field);
    text->setHtml(html);
    exhibit->addSpecimen(caption, text, columns);
    return text;
}

ZTextWidget *addTexts(Exhibit *exhibit)
{
    ZTextWidget *live = addText(exhibit, "Heading and list", Manual, LiveSize, LiveColumns);
    addText(exhibit, "Table", Table);
    addText(exhibit, "Cut at the bottom", Manual);

    addText(exhibit, "No ground, centred and justified", Notes, LiveSize, LiveColumns)
        ->setBackgroundColor(Qt::transparent);
    addText(exhibit, "No markup", Plain)->setBackgroundColor(Look::Blue);
    ZTextWidget *font = addText(exhibit, "Font of the document", Table);
    font->textDocument()->setDefaultFont(QFont("Monospace"));
    return live;
}

void addDocumentControls(ControlPanel *controls, ZTextWidget *text)
{
    controls->addChoice<QString>(
        "Document", {{"List", Manual}, {"Table", Table}, {"Notes", Notes}, {"No markup", Plain}},
        [=](const QString &html) { text->setHtml(html); });
    controls->addActions("Content", {{"Clear", [=] {
                                          text->clearText();
                                          text->update();
                                      }}});
    controls->addColor("Background", {"#343941", "#1f5fae", "#7a2f3a", "transparent"},
                       repainting(text, &ZTextWidget::setBackgroundColor));
    controls->addNumber("Width", 40, LiveSize.width(), LiveSize.width(),
                        [=](int width) { text->setFixedWidth(width); });
    controls->addNumber("Height", 40, LiveSize.height(), LiveSize.height(),
                        [=](int height) { text->setFixedHeight(height); });
}

} // namespace

void addZTextWidget(Page *page)
{
    Exhibit *exhibit = page->addExhibit(
        "ZTextWidget", "An HTML document, as wide as its widget and cut where that ends",
        Exhibit::Full);
    addDocumentControls(exhibit->controls(), addTexts(exhibit));
}
