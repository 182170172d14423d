#include "widgettest.h"

#include <QAbstractTextDocumentLayout>
#include <ztextwidget.h>

namespace {

const QString Html = "<h2>Title</h2><p>Some <b>words</b> of <i>HTML</i>, more of "
                     "them than fit</p><table border=1><tr><td>1<td>2</table>";
const QColor Ground(20, 40, 200, 150);

void drawHtml(QPainter &painter, const QRect &all)
{
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(all, Ground);
    QTextDocument document;
    document.setHtml(Html);
    document.setTextWidth(all.width());
    document.drawContents(&painter, all);
}

} // namespace

class TestZTextWidget : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
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
            comparePictures(widget, {size}, drawHtml);
        }
        QSignalSpy layouts(widget.textDocument()->documentLayout(),
                           &QAbstractTextDocumentLayout::update);
        snapshot(widget);
        QCOMPARE(layouts.size(), 0);
        widget.textDocument()->setPageSize({91, 20});
        comparePictures(widget, {{91, 201}}, drawHtml);
    }

    void laysPicturesOutWhenTheyChange()
    {
        const QString html = "<p>A <img src='memory:picture'> in text";
        ZTextWidget widget;
        widget.setHtml(html);
        for (const QSize size : {QSize(), QSize(30, 9), QSize(9, 30)}) {
            const auto addPicture = [&](QTextDocument *document) {
                document->addResource(QTextDocument::ImageResource, QUrl("memory:picture"),
                                      spottedPixmap(size));
            };
            if (size.isValid())
                addPicture(widget.textDocument());
            comparePictures(widget, {{120, 60}}, [&](QPainter &painter, const QRect &all) {
                painter.setRenderHint(QPainter::Antialiasing, false);
                QTextDocument document;
                if (size.isValid())
                    addPicture(&document);
                document.setHtml(html);
                document.setTextWidth(all.width());
                document.drawContents(&painter, all);
            });
        }
        QVERIFY(!repaints(widget, [] { QTest::qWait(100); }));
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
