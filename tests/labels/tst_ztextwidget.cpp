#include "widgettest.h"

#include <QAbstractTextDocumentLayout>
#include <ztextwidget.h>

using ZIRVOUI::ZTextWidget;

namespace {

const QString Html = QStringLiteral("<h2>Title</h2><p>Some <b>words</b> of <i>HTML</i>, more of "
                                    "them than fit</p><table border=1><tr><td>1<td>2</table>");
const QColor Ground(20, 40, 200, 150);

QImage expected(const QSize &size)
{
    return reference(size, [&](QPainter &painter) {
        painter.fillRect(QRect(QPoint(), size), Ground);
        QTextDocument document;
        document.setHtml(Html);
        document.setTextWidth(size.width());
        document.drawContents(&painter, QRectF(QPointF(), size));
    });
}

} // namespace

class TestZTextWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void paints()
    {
        ZTextWidget widget;
        QVERIFY(widget.hasMouseTracking());
        for (const QSize size : {QSize(160, 60), QSize(91, 201)}) {
            widget.clearText();
            widget.setBackgroundColor(Qt::transparent);
            COMPARE_PICTURES(snapshot(widget, size), blankPicture(size));
            widget.setHtml(Html);
            widget.setBackgroundColor(Ground);
            COMPARE_PICTURES(snapshot(widget), expected(size));
        }
        QSignalSpy layouts(widget.textDocument()->documentLayout(),
                           &QAbstractTextDocumentLayout::update);
        snapshot(widget);
        QCOMPARE(layouts.size(), 0);
        widget.textDocument()->setPageSize({91, 20});
        COMPARE_PICTURES(snapshot(widget), expected({91, 201}));
    }

    void repaintsForNewHtmlAlone()
    {
        ZTextWidget widget;
        QVERIFY(repaints(widget, [&] { widget.setHtml(Html); }));
        QVERIFY(!repaints(widget, [&] {
            widget.setBackgroundColor(Qt::red);
            widget.textDocument()->setPlainText("plain");
            widget.clearText();
            QTest::qWait(100);
        }));
    }
};

QTEST_MAIN(TestZTextWidget)
#include "tst_ztextwidget.moc"
