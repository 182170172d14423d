#include "widgettest.h"

#include <QMovie>
#include <zgifwidget.h>

class TestZGifWidget : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void plays()
    {
        ZGifWidget widget(m_gif.path());
        QCOMPARE(widget.movie()->state(), QMovie::Running);
        widget.toDefaultSize();
        QCOMPARE(widget.minimumSize(), QSize(4, 2));
        widget.setSize(10, 6);
        QCOMPARE(widget.size(), QSize(4, 2));
        QVERIFY(repaints(widget, [] { QTest::qWait(300); }));
        widget.toDefaultSize();
        QCOMPARE(widget.maximumSize(), QSize(10, 6));

        widget.movie()->setPaused(true);
        for (const QColor color : {Qt::red, Qt::blue, Qt::red}) {
            widget.movie()->jumpToFrame(color == Qt::blue);
            comparePictures(widget, {{10, 6}}, [&](auto &p, auto &all) { p.fillRect(all, color); });
        }
        QVERIFY(!repaints(widget, [] { QTest::qWait(100); }));
    }

    void showsNothingOfABadFile()
    {
        const SampleFile missing("missing.gif"), broken("broken.gif", "GIF89a"), pipe("pipe.gif");
        const SampleFile huge("huge.png", hugePicture());
        pipe.makePipe();
        const QString impossible = QString::fromLatin1("nul\0.gif", 8);
        for (const QString &path :
             {missing.path(), broken.path(), huge.path(), pipe.path(), impossible, QString()}) {
            ZGifWidget widget(path);
            widget.setSize(20, 20);
            COMPARE_PICTURES(snapshot(widget, {9, 9}), blankPicture({9, 9}));
            widget.toDefaultSize();
            QCOMPARE(widget.size(), QSize(0, 0));
        }
    }

    void refusesSizesOfNoPicture()
    {
        ZGifWidget widget(m_gif.path());
        for (const int side : {INT_MAX, 100000, 0, -7, INT_MIN}) {
            widget.setSize(side, side);
            widget.movie()->jumpToNextFrame();
            widget.toDefaultSize();
            QCOMPARE(widget.size(), QSize(4, 2));
        }
    }

private:
    // 4 × 2 pixels of red and of blue, 50 ms each, for ever.
    const QByteArray m_frames = QByteArray::fromBase64(
        "R0lGODlhBAACAPAAAP8AAAAA/yH5BAQFAAAAIf8LTkVUU0NBUEUyLjADAQAAACwAAAAABAACAAACA4RvBQAh+"
        "QQEBQAAACwAAAAABAACAAACA4xvBQA7");
    const SampleFile m_gif{"sample.gif", m_frames};
};

QTEST_MAIN(TestZGifWidget)
#include "tst_zgifwidget.moc"
