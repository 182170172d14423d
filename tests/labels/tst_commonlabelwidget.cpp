#include "paintcounter.h"
#include "picture.h"
#include "warnings.h"

#include <QtTest>
#include <commonlabelwidget.h>
#include <zclicklabel.h>

using namespace ZIRVOUI;

class TestCommonLabelWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void placesItsLabels()
    {
        for (const auto orientation : {Qt::Vertical, Qt::Horizontal}) {
            CommonLabelWidget group(nullptr, orientation);
            const QList<ZClickLabel *> labels
                = {group.titleLabel(), group.icoLabel(), group.textLabel()};
            QCOMPARE(group.findChildren<ZClickLabel *>(), labels);
            labels[0]->setFixedSize(60, 14);
            labels[2]->setFixedSize(40, 20);
            group.setIconSize({30, 24});
            group.setIconSize({24, 30});
            group.setSpacing(7);
            group.resize(301, 201);
            group.show();

            // Along the group its labels are together in the middle, across it each is.
            const auto along
                = [&](QPoint p) { return orientation == Qt::Vertical ? p.y() : p.x(); };
            const auto across
                = [&](QPoint p) { return orientation == Qt::Vertical ? p.x() : p.y(); };
            const auto isInPlace = [&](ZClickLabel *first, ZClickLabel *last) {
                const int before = along(first->pos());
                const int after
                    = along(group.rect().bottomRight() - last->geometry().bottomRight());
                return qAbs(before - after) <= 1;
            };
            QVERIFY(isInPlace(labels[0], labels[2]));
            for (ZClickLabel *label : labels) {
                const QPoint offset = group.rect().center() - label->geometry().center();
                QVERIFY(qAbs(across(offset)) <= 1);
            }
            const auto gap = [&](ZClickLabel *first, ZClickLabel *second) {
                return along(second->pos() - first->geometry().bottomRight()) - 1;
            };
            QCOMPARE(gap(labels[0], labels[1]), 7);
            QCOMPARE(gap(labels[1], labels[2]), 7);

            group.setTitleVisible(false);
            QCoreApplication::processEvents();
            QVERIFY(isInPlace(labels[1], labels[2]));
            group.setTextVisible(false);
            QCoreApplication::processEvents();
            QVERIFY(isInPlace(labels[1], labels[1]));
        }
    }

    void fixesTheIconForANewSize()
    {
        CommonLabelWidget group;
        group.setIconSize({20, 20});
        QCOMPARE(group.icoLabel()->maximumWidth(), QWIDGETSIZE_MAX);
        group.setIconSize({24, 25});
        group.icoLabel()->setFixedSize(9, 9);
        group.setIconSize({24, 25});
        QCOMPARE(group.icoLabel()->size(), QSize(9, 9));
        group.setIconSize({-1, 20});
        QCOMPARE(group.icoLabel()->size(), QSize(0, 20));
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

        QPixmap picture(4, 4);
        picture.fill(Qt::red);
        group.setIcon(picture);
        group.setIcoCornerVisible(true);
        const QImage icon = snapshot(*group.icoLabel(), {40, 40});
        QCOMPARE(icon.pixelColor(1, 20), QColor(Qt::red));
        QCOMPARE(icon.pixelColor(38, 2), QColor(235, 194, 50));
        group.setIcon("missing.png");
        QVERIFY(group.icoLabel()->Picture().isNull());
        QVERIFY(!repaints(group, [] { QTest::qWait(100); }));
    }
};

QTEST_MAIN(TestCommonLabelWidget)
#include "tst_commonlabelwidget.moc"
