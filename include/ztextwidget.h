#ifndef ZTEXTWIDGET_H
#define ZTEXTWIDGET_H

#include "zcommonwidgets_export.h"

#include <QTextDocument>
#include <QWidget>

namespace ZIRVOUI {

/*!
 * An HTML document on a coloured ground, as wide as the widget; what does not fit into its height
 * is not seen.  It asks a layout for no size: give it one.
 *
 * HTML is trusted: what it names is loaded, and its layout takes as long as it takes, once for each
 * new document or width; at each paint if it holds pictures, whose resources may have changed.
 */
class ZCOMMONWIDGETS_EXPORT ZTextWidget : public QWidget
{
    Q_OBJECT

public:
    /*! An empty document. */
    explicit ZTextWidget(QWidget *parent = nullptr);
    ~ZTextWidget() override;

    /*! Replaces the document's content, and repaints. */
    void setHtml(QString html);
    /*!
     * The document, which belongs to the widget.  Changes to it show at the next paint: call
     * update().  After those that it tells nobody of, like hiding a block, call its
     * markContentsDirty() as well; addResource() needs none.
     */
    QTextDocument *textDocument();
    /*! Empties the document.  Does not repaint. */
    void clearText();
    /*! The ground, transparent by default.  Only stores. */
    void setBackgroundColor(const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QTextDocument m_document;
    QColor m_backgroundColor = Qt::transparent;
};

} // namespace ZIRVOUI

#endif
