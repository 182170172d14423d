#include "widgettest.h"

#include <QLayout>
#include <commonlabelwidget.h>
#include <zclicklabel.h>

class TestCommonLabelWidget : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void placesItsLabels()
    {
        using Places = QList<QRect>;
        // Of a row and a column: with all labels, without the title, and with the icon alone.
        const Places places[][3] = {{{{82, 93, 60, 14}, {150, 85, 20, 30}, {178, 90, 40, 20}},
                                     {{116, 85, 20, 30}, {144, 90, 40, 20}},
                                     {{140, 85, 20, 30}}},
                                    {{{120, 60, 60, 14}, {140, 82, 20, 30}, {130, 120, 40, 20}},
                                     {{140, 71, 20, 30}, {130, 109, 40, 20}},
                                     {{140, 85, 20, 30}}}};
        for (const bool isColumn : {false, true}) {
            CommonLabelWidget group(nullptr, isColumn ? Qt::Vertical : Qt::Horizontal);
            group.setIconSize({30, 24});
            group.setIconSize({20, 30});
            group.titleLabel()->setFixedSize(60, 14);
            group.textLabel()->setFixedSize(40, 20);
            group.setSpacing(8);
            group.resize(300, 200);
            group.show();
            QVERIFY(group.layout()->contentsMargins().isNull());
            for (int hidden = 0; hidden < 3; ++hidden) {
                group.setTitleVisible(hidden < 1);
                group.setTextVisible(hidden < 2);
                QCoreApplication::processEvents();
                Places seen;
                for (const ZClickLabel *label : group.findChildren<ZClickLabel *>()) {
                    if (label->isVisible())
                        seen << label->geometry();
                }
                QCOMPARE(seen, places[isColumn][hidden]);
            }
        }
    }

    void passesOnWhatItsLabelsShow()
    {
        CommonLabelWidget group;
        group.setTitleText("title");
        group.setText("text");
        group.setText(QString());
        QCOMPARE(group.titleLabel()->text(), QString("title"));
        QCOMPARE(group.textLabel()->text(), QString());
        QVERIFY(!group.textLabel()->isHidden());

        group.setIconSize({20, 20});
        QCOMPARE(group.icoLabel()->maximumWidth(), QWIDGETSIZE_MAX);
        group.setIconSize({-1, 20});
        QCOMPARE(group.icoLabel()->size(), QSize(0, 20));
        group.icoLabel()->setFixedSize(40, 40);
        group.setIconSize({-1, 20});

        group.setIcon(spottedPixmap());
        group.setIcoCornerVisible(true);
        const QImage icon = snapshot(*group.icoLabel());
        QCOMPARE(icon.size(), QSize(40, 40));
        QCOMPARE(icon.pixelColor(1, 20), QColor(Qt::darkCyan));
        QCOMPARE(icon.pixelColor(38, 2), QColor(235, 194, 50));
        group.setIcon("missing.png");
        QVERIFY(group.icoLabel()->Picture().isNull());
    }
};

QTEST_MAIN(TestCommonLabelWidget)
#include "tst_commonlabelwidget.moc"
