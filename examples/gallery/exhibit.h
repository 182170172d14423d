#ifndef EXHIBIT_H
#define EXHIBIT_H

#include <QWidget>
#include <functional>

class ControlPanel;
class QGridLayout;

/*!
 * A card for one class: its name, a line about it, its specimens side by side and the controls.
 *
 * The controls act on the first specimen, whose caption is marked.
 */
class Exhibit : public QWidget
{
    Q_OBJECT

public:
    /*! How much of the page's width the card takes. */
    enum Width {
        Half,
        Full
    };

    Exhibit(const QString &name, const QString &description, Width width,
            QWidget *parent = nullptr);

    QString name() const;
    ControlPanel *controls() const;

    /*! The exhibit takes ownership of \a specimen, which gets as many \a columns as it needs. */
    void addSpecimen(const QString &caption, QWidget *specimen, int columns = 1);

    /*! \a still stops what moves among the specimens, at an instant that shows what it does. */
    void setStill(const std::function<void()> &still);
    void standStill();
    /*! The specimens without the controls. */
    QPixmap grabSpecimens();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_name;
    QWidget *m_stage;
    QGridLayout *m_specimens;
    ControlPanel *m_controls;
    std::function<void()> m_still;
    int m_specimensPerRow;
    int m_count = 0;
};

#endif
