#ifndef DESIGNERPLUGIN_H
#define DESIGNERPLUGIN_H

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

/*!
 * The widgets in Qt Designer and QUiLoader, grouped as the folders of the sources.
 *
 * Dialogs are no part of a form.  CircleButton, ImageSwitchButton and ZGifWidget are built with the
 * paths of their pictures, which generated code does not know.  ZScrollLabel has no meta object, so
 * that Designer would save it as a QLabel; a QLabel can be promoted to it.
 */
class DesignerPlugin : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetCollectionInterface_iid)
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    DesignerPlugin();
    ~DesignerPlugin() override;

    QList<QDesignerCustomWidgetInterface *> customWidgets() const override;

private:
    const QList<QDesignerCustomWidgetInterface *> m_widgets;
};

#endif
