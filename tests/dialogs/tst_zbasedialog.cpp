#include "widgettest.h"

#include <QHBoxLayout>
#include <zbasedialog.h>

struct Look
{
    int type, radius, shadow;
    QColor color = QColor(0, 0, 0, 120);
};
Q_DECLARE_METATYPE(Look)

class TestZBaseDialog : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void paints_data()
    {
        QTest::addColumn<Look>("look");
        for (int type = 0; type <= 9; ++type)
            QTest::addRow("radius type %d", type) << Look{type, 20, 8};
        QTest::newRow("radius type out of range") << Look{42, 20, 8};
        QTest::newRow("no shadow") << Look{9, 5, 0};
        QTest::newRow("a shadow of two outlines") << Look{9, 5, 1};
        QTest::newRow("a shadow that does not fade out") << Look{9, 5, 7, QColor(200, 0, 0)};
        QTest::newRow("negative shadow") << Look{9, 20, -3};
        QTest::newRow("overlapping corners") << Look{9, 90, 8};
        QTest::newRow("round as can be") << Look{9, 60, 15};
        QTest::newRow("rounder than any device") << Look{9, 40000, 8};
        QTest::newRow("mirrored outlines") << Look{9, 10, 70};
        QTest::newRow("negative radius") << Look{9, -6, 8};
        QTest::newRow("shadow wider than the dialog") << Look{9, 20, 400};
        QTest::newRow("the same, arcs coming back") << Look{7, -700, 400};
    }

    void paints()
    {
        QFETCH(Look, look);
        const char *const cornersOfType[]
            = {"----", "r---", "-r--", "---r", "--r-", "rr--", "--rr", "r--r", "-rr-", "rrrr"};
        const char *corners = cornersOfType[look.type > 9 ? 0 : look.type];
        ZBaseDialog dialog;
        dialog.setRadiusType(ZBaseDialog::RadiusType(look.type));
        dialog.setRadius(look.radius);
        dialog.setShadowEffectWidth(look.shadow);
        dialog.setShadowEffectColor(look.color);
        dialog.setBackGroundColor(QColor(60, 60, 68, 120));

        for (const QSize size : {QSize(120, 90), QSize(87, 61)}) {
            const auto at = [&](int inset) {
                const QRectF body = QRectF(QPointF(), size).adjusted(inset, inset, -inset, -inset);
                return roundedOutline(body, look.radius, corners);
            };
            const auto draw = [&](QPainter &painter) {
                const int step = look.shadow > 0 ? look.color.alpha() / look.shadow : 0;
                QColor color = look.color;
                painter.setRenderHint(QPainter::Antialiasing);
                for (int outer = 0; outer <= look.shadow; ++outer) {
                    color.setAlpha(look.color.alpha() - outer * step);
                    painter.setPen(color);
                    painter.drawPath(at(look.shadow - outer));
                }
                painter.setRenderHint(QPainter::Antialiasing, false);
                painter.fillPath(at(look.shadow), QColor(60, 60, 68, 120));
            };
            COMPARE_PICTURES(snapshot(dialog, size), reference(size, draw));
            COMPARE_PICTURES(snapshot(dialog, 1.5), reference(size, draw, 1.5));

            QImage parts = blankPicture(size);
            for (int i = 0; i < 12 * 9; ++i) {
                const QRect part(i % 12 * 10, i / 12 * 10, 10, 10);
                dialog.render(&parts, part.topLeft(), part, QWidget::DrawChildren);
            }
            COMPARE_PICTURES(parts, snapshot(dialog));
        }
    }

    void neverFreezesInAPaint()
    {
        ZBaseDialog dialog;
        dialog.resize(300, 200);
        const QDeadlineTimer deadline(5000);
        for (int shadow : {1000000, INT_MAX, -INT_MAX, INT_MIN}) {
            for (int radius : {0, 20, -1000000, INT_MAX, INT_MIN}) {
                dialog.setShadowEffectWidth(shadow);
                dialog.setRadius(radius);
                snapshot(dialog);
            }
        }

        // As wide as the shadow itself asks for, and shown in a window of the usual size.
        QWidget window;
        window.resize(640, 480);
        ZBaseDialog wide(&window);
        wide.setShadowEffectWidth(1000000);
        wide.setFixedSize(300, 200);
        QVERIFY(repaints(window, [&] { wide.show(); }));
        QVERIFY(!deadline.hasExpired());
    }

    void keepsItsFirstLayoutOutOfTheShadow()
    {
        ZBaseDialog dialog;
        dialog.setShadowEffectWidth(13);
        dialog.setLayout(nullptr);
        auto *content = new QVBoxLayout;
        content->addWidget(new QWidget);
        dialog.setLayout(content);

        QVBoxLayout second;
        dialog.setLayout(&second);
        QVERIFY(!second.parent());
        dialog.setShadowEffectWidth(50);
        dialog.resize(200, 100);
        dialog.layout()->activate();
        QCOMPARE(content->geometry(), QRect(13, 13, 174, 74));
    }

    void addsTheShadowToFixedSizes()
    {
        ZBaseDialog dialog;
        dialog.setFixedSize(QSize(10, 20));
        QCOMPARE(dialog.size(), QSize(26, 36));
        dialog.setShadowEffectWidth(3);
        dialog.setFixedSize(INT_MAX, -100);
        QCOMPARE(dialog.size(), QSize(QWIDGETSIZE_MAX, 0));
        dialog.setFixedWidth(50);
        dialog.setFixedHeight(40);
        QCOMPARE(dialog.size(), QSize(56, 46));
    }

    void showsAndRepaintsOnRequest()
    {
        QWidget window;
        ZBaseDialog child(&window);
        QHBoxLayout layout(&window);
        layout.addWidget(new ZBaseDialog);
        window.show();
        QVERIFY(!child.isVisible() && layout.itemAt(0)->widget()->isVisible());
        QVERIFY(!repaints(child, [&] {
            child.setShadowEffectWidth(3);
            child.setShadowEffectColor(Qt::red);
            child.setBackGroundColor(Qt::green);
            child.setRadius(1);
            child.setRadiusType(ZBaseDialog::NoRadius);
        }));
        QCOMPARE(child.windowFlags(), Qt::WindowFlags(Qt::FramelessWindowHint));
    }
};

QTEST_MAIN(TestZBaseDialog)
#include "tst_zbasedialog.moc"
