#include "widgettest.h"

#include <QAccessible>
#include <circlebutton.h>
#include <circleprogess.h>
#include <circularloadingwidget.h>
#include <commonlabelwidget.h>
#include <hprogressanime.h>
#include <imageswitchbutton.h>
#include <lineedit.h>
#include <loadingwidget.h>
#include <maskwidget.h>
#include <progressbar.h>
#include <rotateprogress.h>
#include <roundedbutton.h>
#include <switchbutton.h>
#include <zadjustfontlabel.h>
#include <zbutton.h>
#include <zgifwidget.h>
#include <zimagebutton.h>
#include <zloadingdialog.h>
#include <zradiobutton.h>
#include <zresizablelabel.h>
#include <zscrollbar.h>
#include <zscrolllabel.h>
#include <zslider.h>
#include <zsvgwidget.h>
#include <ztextwidget.h>
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
        const QVector<QPair<QWidget *, QAccessible::Role>> roles{
            {new CommonLabelWidget, QAccessible::Grouping},
            {new ZAdjustFontLabel, QAccessible::StaticText},
            {new ZResizableLabel, QAccessible::StaticText},
            {new ZScrollLabel, QAccessible::StaticText},
            {new ZTextWidget, QAccessible::Document},
            {new MaskWidget, QAccessible::Graphic},
            {new ZGifWidget(QString()), QAccessible::Animation},
            {new OwnIcon, QAccessible::Graphic},
            {new ZLoadingDialog(QString()), QAccessible::Dialog},
            {new ZToastDialog(ToastPrompt, QString()), QAccessible::AlertMessage},
            {new CircleButton(QString()), QAccessible::Button},
            {new ImageSwitchButton(QString(), QString()), QAccessible::Button},
            {new RoundedButton, QAccessible::Button},
            {new SwitchButton, QAccessible::CheckBox},
            {new ZButton, QAccessible::Button},
            {new ZRadioButton, QAccessible::RadioButton},
            {new CircleProgess, QAccessible::ProgressBar},
            {new CircularLoadingWidget, QAccessible::ProgressBar},
            {new HProgressAnime, QAccessible::ProgressBar},
            {new LoadingWidget, QAccessible::ProgressBar},
            {new ProgressBar, QAccessible::ProgressBar},
            {new RotateProgress, QAccessible::ProgressBar},
            {new ZScrollBar, QAccessible::ScrollBar},
            {new ZSlider, QAccessible::Slider},
            {new LineEdit, QAccessible::EditableText},
        };
        for (const auto &role : roles) {
            const QScopedPointer<QWidget> widget(role.first);
            QCOMPARE(interfaceOf(*widget).role(), role.second);
            const auto children = widget->findChildren<QWidget *>();
            for (QWidget *child : children)
                QVERIFY(interfaceOf(*child).role() != QAccessible::Client);
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
