#include "paintcounter.h"
#include "picture.h"
#include "warnings.h"

#include <QAbstractTextDocumentLayout>
#include <QtTest>
#include <ztextwidget.h>

using ZIRVOUI::ZTextWidget;

namespace {

const QString Html = QStringLiteral("<h2>Title</h2><p>Some <b>words</b> of <i>HTML</i>, more of "
                                    "them than fit</p><table border=1><tr><td>1<td>2</table>");

QImage expected(const QString &html, const QSize &size, const QColor &ground)
{
    return reference(size, [&](QPainter &painter) {
        painter.fillRect(QRect(QPoint(), size), ground);
        QTextDocument document;
        document.setHtml(html);
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
            widget.setBackgroundColor(QColor(20, 40, 200, 150));
            COMPARE_PICTURES(snapshot(widget), expected(Html, size, QColor(20, 40, 200, 150)));
        }
        widget.textDocument()->setPageSize({91, 20});
        COMPARE_PICTURES(snapshot(widget), expected(Html, {91, 201}, QColor(20, 40, 200, 150)));
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
        QVERIFY(widget.textDocument()->isEmpty());
    }

    void laysOutOnceForAWidth()
    {
        ZTextWidget widget;
        widget.setHtml(Html);
        snapshot(widget, {160, 60});
        QSignalSpy layouts(widget.textDocument()->documentLayout(),
                           &QAbstractTextDocumentLayout::update);
        snapshot(widget);
        QCOMPARE(layouts.size(), 0);
        snapshot(widget, {161, 60});
        QVERIFY(layouts.size() > 0);
        COMPARE_PICTURES(snapshot(widget), expected(Html, {161, 60}, Qt::transparent));
    }
};

QTEST_MAIN(TestZTextWidget)
#include "tst_ztextwidget.moc"
