#include "ui_everywidget.h" // includes the widgets that a form can hold
#include "widgettest.h"

#include <QAccessible>
#include <circlebutton.h>
#include <imageswitchbutton.h>
#include <zgifwidget.h>
#include <zloadingdialog.h>
#include <zscrolllabel.h>
#include <ztoastdialog.h>

namespace {

QAccessibleInterface &interfaceOf(QWidget &widget)
{
    return *QAccessible::queryAccessibleInterface(&widget);
}

QString nameOf(QWidget &widget)
{
    return interfaceOf(widget).text(QAccessible::Name);
}

/*! Current value, minimum, maximum and step. */
QVector<double> valuesOf(QWidget &widget)
{
    QAccessibleValueInterface &values = *interfaceOf(widget).valueInterface();
    return {values.currentValue().toDouble(), values.minimumValue().toDouble(),
            values.maximumValue().toDouble(), values.minimumStepSize().toDouble()};
}

bool isBusy(QWidget &widget)
{
    return interfaceOf(widget).state().busy;
}

} // namespace

class TestAccessibility : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    // A class of the application's that inherits one of these is told apart from it by no tool.
    void rolesTellWhatWidgetsAre()
    {
        struct OwnIcon : ZSvgWidget
        {
        };
        const QVector<QPair<QAccessible::Role, QWidgetList>> widgetsOfRoles{
            {QAccessible::Grouping, {new CommonLabelWidget}},
            {QAccessible::StaticText,
             {new ZAdjustFontLabel, new ZResizableLabel, new ZScrollLabel}},
            {QAccessible::Document, {new ZTextWidget}},
            {QAccessible::Graphic, {new MaskWidget, new OwnIcon}},
            {QAccessible::Animation, {new ZGifWidget(QString())}},
            {QAccessible::Dialog, {new ZLoadingDialog(QString())}},
            {QAccessible::AlertMessage, {new ZToastDialog(ToastPrompt, QString())}},
            {QAccessible::Button,
             {new CircleButton(QString()), new ImageSwitchButton(QString(), QString()),
              new RoundedButton, new ZButton}},
            {QAccessible::CheckBox, {new SwitchButton}},
            {QAccessible::RadioButton, {new ZRadioButton}},
            {QAccessible::ProgressBar,
             {new CircleProgess, new CircularLoadingWidget, new HProgressAnime, new LoadingWidget,
              new ProgressBar, new RotateProgress}},
            {QAccessible::ScrollBar, {new ZScrollBar}},
            {QAccessible::Slider, {new ZSlider}},
            {QAccessible::EditableText, {new LineEdit}}};
        for (const auto &[role, widgets] : widgetsOfRoles) {
            for (QWidget *widget : widgets) {
                const QScopedPointer<QWidget> owner(widget);
                QVERIFY2(interfaceOf(*widget).role() == role, widget->metaObject()->className());
                for (QWidget *child : widget->findChildren<QWidget *>())
                    QVERIFY(interfaceOf(*child).role() != QAccessible::Client);
            }
        }
    }

    void namesAreTheTextsThatAreSeen()
    {
        ZTextWidget text;
        text.setHtml("<h1>Title</h1>and <b>more</b>");
        QCOMPARE(nameOf(text), QString("Title\nand more"));
        text.setAccessibleName("About");
        QCOMPARE(nameOf(text), QString("About"));

        ZClickLabel label("<b>drawn as it stands</b>");
        QCOMPARE(nameOf(label), QString("<b>drawn as it stands</b>"));

        ZToastDialog toast(ToastError, "No connection");
        QCOMPARE(nameOf(toast), QString("No connection"));
    }

    void barsAndRingsHaveTheirValues()
    {
        ProgressBar bar;
        bar.setRange(-10.0, 90.5);
        bar.setValue(12.5);
        QCOMPARE(valuesOf(bar), (QVector<double>{12.5, -10, 90.5, 0}));
        QCOMPARE(interfaceOf(bar).text(QAccessible::Value), QString("12.5"));
        bar.setAccessibleName("Copying");
        QCOMPARE(nameOf(bar), QString("Copying"));

        CircleProgess ring;
        ring.setMin(1);
        ring.setMax(3);
        ring.setValue(2);
        interfaceOf(ring).valueInterface()->setCurrentValue(3);
        QCOMPARE(valuesOf(ring), (QVector<double>{2, 1, 3, 0}));
        QVERIFY(interfaceOf(ring).state().readOnly);
    }

    void sliderMovesItsHandleToTheValue()
    {
        ZSlider slider;
        slider.resize(211, 31);
        const QImage before = snapshot(slider);
        interfaceOf(slider).valueInterface()->setCurrentValue(1e300);
        QCOMPARE(valuesOf(slider), (QVector<double>{99, 0, 99, 1}));
        const QImage after = snapshot(slider);
        slider.calcHandlePosition();
        COMPARE_PICTURES(snapshot(slider), after);
        QVERIFY(after != before);
    }

    void indicatorsAreBusyWhileTheyMove()
    {
        LoadingWidget spinner;
        QVERIFY(isBusy(spinner));
        spinner.stop();
        QVERIFY(!isBusy(spinner));

        RotateProgress turn;
        QVERIFY(!isBusy(turn));
        turn.startAnmition();
        QVERIFY(isBusy(turn));

        CircularLoadingWidget arc;
        HProgressAnime strip;
        QVERIFY(isBusy(arc) && isBusy(strip));
    }

    void pressingALabelIsATap()
    {
        const QString press = QAccessibleActionInterface::pressAction();
        auto *label = new ZClickLabel("tap");
        QStringList order;
        connect(label, &ZClickLabel::signal_pressed, this, [&] { order << "pressed"; });
        connect(label, &ZClickLabel::signal_clicked, this, [&] { order << "clicked"; });
        connect(label, &ZClickLabel::signal_released, this, [&] {
            order << "released";
            if (order.size() > 3)
                delete label;
        });

        QAccessibleActionInterface *actions = interfaceOf(*label).actionInterface();
        QCOMPARE(actions->actionNames(), QStringList(press));
        actions->doAction(press);
        actions->doAction(actions->setFocusAction());
        QCOMPARE(label->focusWidget(), label);
        QCOMPARE(order, QStringList({"pressed", "released", "clicked"}));

        label->setEnabled(false);
        QVERIFY(actions->actionNames().isEmpty());
        actions->doAction(press);
        QCOMPARE(order.size(), 3);

        label->setEnabled(true);
        actions->doAction(press);
        QCOMPARE(order.size(), 5);
    }
};

// All of this in the second application of a process: Qt forgets factories after the first.
int main(int argc, char **argv)
{
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    {
        QApplication first(argc, argv);
        ProgressBar bar;
        if (interfaceOf(bar).role() != QAccessible::ProgressBar)
            return EXIT_FAILURE;
    }
    QApplication second(argc, argv);
    TestAccessibility test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_accessibility.moc"
