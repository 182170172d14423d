#ifndef STORAGEPAGE_H
#define STORAGEPAGE_H

#include <QWidget>

class Look;
class QBoxLayout;
class QLabel;
class QScrollArea;
class QStorageInfo;

namespace ZIRVOUI {
class CircleProgess;
class CommonLabelWidget;
} // namespace ZIRVOUI

/*! How full the device's storage is, and each of its volumes. */
class StoragePage : public QWidget
{
    Q_OBJECT

public:
    explicit StoragePage(Look *look, QWidget *parent = nullptr);

private:
    QWidget *newSummary();
    QWidget *newRing();
    QWidget *newList();
    void scan();
    void showRoot(const QStorageInfo &root);
    void addVolume(QBoxLayout *column, const QStorageInfo &volume);

    Look *m_look;
    ZIRVOUI::CircleProgess *m_ring;
    ZIRVOUI::CommonLabelWidget *m_figures;
    QScrollArea *m_list;
};

#endif
