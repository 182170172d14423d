#ifndef LOOK_H
#define LOOK_H

#include <QColor>
#include <QObject>

/*! The colours of one theme, from the back to the front. */
struct Theme
{
    const char *name;
    QRgb ground;
    QRgb card;
    QRgb field;
    QRgb quietInk;
    QRgb ink;
    QRgb accent;
};

/*! The theme of the application, which can change at any time; it is kept in the settings. */
class Look : public QObject
{
    Q_OBJECT

public:
    explicit Look(QObject *parent = nullptr);

    static const QVector<Theme> &themes();
    const Theme &theme() const { return *m_theme; }
    /*! A name that is unknown chooses the first theme. */
    void setTheme(const QString &name);

    /*!
     * Calls \a paint with \a widget and the theme, now and after each change, and repaints: most
     * of the library's setters of colours only store.
     */
    template <typename Widget, typename Paint>
    Widget *dress(Widget *widget, Paint paint)
    {
        const auto apply = [=](const Theme &theme) {
            paint(widget, theme);
            widget->update();
        };
        connect(this, &Look::changed, widget, apply);
        apply(theme());
        return widget;
    }

Q_SIGNALS:
    void changed(const Theme &theme);

private:
    const Theme *m_theme;
};

#endif
