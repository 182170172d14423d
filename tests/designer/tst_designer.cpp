#include "ui_everywidget.h"
#include "widgettest.h"

#include <QDir>
#include <QPluginLoader>
#include <QUiLoader>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

namespace {

const QDir Sources(QStringLiteral(ZCOMMONWIDGETS_SOURCE));

QList<QDesignerCustomWidgetInterface *> offered()
{
    QPluginLoader loader(QStringLiteral("designer/libzcommonwidgetsdesigner"));
    const auto *plugin
        = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(loader.instance());
    return plugin ? plugin->customWidgets() : QList<QDesignerCustomWidgetInterface *>();
}

QDesignerCustomWidgetInterface *offer(const QString &name)
{
    const auto widgets = offered();
    const auto found = std::find_if(widgets.begin(), widgets.end(),
                                    [&](auto *widget) { return widget->name() == name; });
    return found == widgets.end() ? nullptr : *found;
}

void addRowPerWidget()
{
    QTest::addColumn<QString>("name");
    for (const auto *widget : offered())
        QTest::newRow(qPrintable(widget->name())) << widget->name();
}

QWidget *loaded(QIODevice &form, QWidget *parent)
{
    form.open(QIODevice::ReadOnly);
    return QUiLoader().load(&form, parent);
}

// The one of the class \a name, which is named after it.
const QWidget *child(const QWidget &form, const QString &name)
{
    const QString bareName = name.section("::", -1);
    return form.findChild<const QWidget *>(bareName.left(1).toLower() + bareName.mid(1));
}

QStringList differingProperties(const QObject &one, const QObject &other)
{
    QStringList differing;
    for (int i = 0; i < one.metaObject()->propertyCount(); ++i) {
        const QMetaProperty property = one.metaObject()->property(i);
        if (property.isStored() && property.isWritable()
            && property.read(&one) != property.read(&other))
            differing << QLatin1String(property.name());
    }
    return differing;
}

} // namespace

class TestDesigner : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void offersEveryWidgetThatAFormCanHold()
    {
        QStringList left
            = QDir(Sources.filePath("include")).entryList({"*.h"}, QDir::Files, QDir::Name);
        for (const auto *widget : offered())
            QVERIFY2(left.removeOne(widget->includeFile()), qPrintable(widget->includeFile()));
        const QStringList others{"zcommonwidgets.h", "zcommonwidgets_export.h"};
        const QStringList noWidgets{"circulardelegate.h", "ipvalidator.h"};
        const QStringList windows{"zbasedialog.h", "zloadingdialog.h", "ztoastdialog.h"};
        const QStringList builtWithPaths{"circlebutton.h", "imageswitchbutton.h", "zgifwidget.h"};
        const QStringList savedAsItsBase{"zscrolllabel.h"};
        QStringList expected = others + noWidgets + windows + builtWithPaths + savedAsItsBase;
        expected.sort();
        QCOMPARE(left, expected);
    }

    void showsInTheWidgetBox_data() { addRowPerWidget(); }
    void showsInTheWidgetBox()
    {
        QFETCH(QString, name);
        // In a group for each folder of sources.
        const QString folder = offer(name)->group().section(" - ", 1).toLower();
        const QString source = QFileInfo(offer(name)->includeFile()).baseName() + ".cpp";
        QVERIFY(Sources.exists("src/" + folder + '/' + source));
        const QIcon icon = offer(name)->icon();
        QVERIFY(!icon.availableSizes().isEmpty());
        const auto draw = [&](QPainter &painter) { icon.paint(&painter, 0, 0, 22, 22); };
        QVERIFY(reference({22, 22}, draw) != blankPicture({22, 22}));
        QVERIFY(!offer(name)->toolTip().isEmpty());
    }

    void dropsAsItself_data() { addRowPerWidget(); }
    void dropsAsItself()
    {
        QFETCH(QString, name);
        QWidget form;
        QByteArray xml = offer(name)->domXml().toUtf8();
        QBuffer buffer(&xml);
        const QWidget *widget = loaded(buffer, &form);
        QVERIFY(widget);
        QCOMPARE(widget, child(form, name));
        QCOMPARE(QString(widget->metaObject()->className()), name);
        QVERIFY(!widget->size().isEmpty());
        QCOMPARE(widget->size().expandedTo(widget->minimumSizeHint()), widget->size());
    }

    void generatedCodeEqualsTheLoadedForm_data() { addRowPerWidget(); }
    void generatedCodeEqualsTheLoadedForm()
    {
        QFETCH(QString, name);
        QWidget generated;
        Ui::EveryWidget().setupUi(&generated);
        QFile file(Sources.filePath("tests/designer/everywidget.ui"));
        QWidget parent;
        const QWidget *form = loaded(file, &parent);
        QVERIFY(form);

        const QWidget *one = child(generated, name);
        const QWidget *other = child(*form, name);
        QVERIFY(one && other);
        QCOMPARE(one->metaObject(), other->metaObject());
        QCOMPARE(differingProperties(*one, *other), QStringList());
    }
};

QTEST_MAIN(TestDesigner)
#include "tst_designer.moc"
