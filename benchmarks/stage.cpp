#include "stage.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QWindow>
#include <climits>
#include <cstdio>

namespace {

constexpr int Patience = 5000; // ms

void drawNothing(QPainter &, const QSize &, int)
{
}

} // namespace

Stage::Stage(const Row &row, Variant variant)
    : m_row(row)
    , m_variant(variant)
    , m_widget(newWidget())
    , m_repainted(m_widget)
{
    m_window.setFixedSize(row.size);
    m_widget->setParent(&m_window);
    m_widget->QWidget::setFixedSize(row.size);
    if (variant == Styled)
        m_widget->setStyleSheet(row.sheet);
    if (row.child.isValid()) {
        m_repainted = new Canvas(drawNothing, m_widget);
        m_repainted->setGeometry(row.child);
    }
    // Whichever window happens to be active, none shows a focus frame or a cursor.
    for (auto *widget : m_window.findChildren<QWidget *>())
        widget->setFocusPolicy(Qt::NoFocus);
    show();
}

QWidget *Stage::newWidget() const
{
    switch (m_variant) {
    case Library:
        return m_row.library();
    case Bare:
        return new Canvas(m_row.bare);
    case Fusion:
    case Styled:
        return m_row.stock();
    case Empty:
        break;
    }
    return new QWidget;
}

void Stage::show()
{
    m_widget->show();
    m_window.show();
    QElapsedTimer time;
    time.start();
    while (!m_window.windowHandle()->isExposed()) {
        if (time.hasExpired(Patience))
            qFatal("The window does not show");
        QCoreApplication::processEvents(QEventLoop::AllEvents, Patience);
    }
    QCoreApplication::processEvents();
}

void Stage::advance()
{
    ++m_frame;
    if (m_variant == Library && m_row.advance)
        m_row.advance(*m_widget, m_frame);
    if (m_variant == Bare)
        static_cast<Canvas *>(m_widget)->setFrame(m_frame);
    if ((m_variant == Fusion || m_variant == Styled) && m_row.advanceStock)
        m_row.advanceStock(*m_widget, m_frame);
}

void Stage::repaint()
{
    m_repainted->repaint();
}

QVector<QImage> Stage::pictures()
{
    const double ratio = m_window.devicePixelRatioF();
    QImage picture(m_widget->size() * ratio, QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    m_widget->render(&picture, QPoint(), QRegion(), QWidget::DrawChildren);
    return {picture,
            m_window.grab().toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied)};
}

Difference operator-(const QImage &one, const QImage &other)
{
    int largest = 0;
    double sum = 0;
    for (int y = 0; y < one.height(); ++y) {
        const uchar *a = one.constScanLine(y);
        const uchar *b = other.constScanLine(y);
        for (int i = 0; i < one.bytesPerLine(); ++i) {
            const int levels = qAbs(int(a[i]) - int(b[i]));
            largest = qMax(largest, levels);
            sum += levels;
        }
    }
    return {largest, sum / UCHAR_MAX / one.bytesPerLine() / one.height()};
}

void countedRepaint(Stage &stage, bool isAdvanceCounted)
{
    if (isAdvanceCounted)
        stage.advance();
    stage.repaint();
}

void tellCounted(const Row &row, Variant variant, int count)
{
    std::printf("%s|%s|%d\n", qPrintable(row.name), VariantNames[variant], count);
    std::fflush(stdout);
}
