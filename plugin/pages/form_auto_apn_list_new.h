#pragma once

// The dialog with the table by which the tracker picks the access point of a SIM by itself: ten rows of
// operator code, access point name, login and password, all free text. Its values are settings of the window
// that owns it (settings/shared_rows.h).

#include <QDialog>

#include <memory>

class QTreeWidgetItem;

namespace Ui {
class VLK_Designer_FormAutoApnListNew;
}

class VLK_FormAutoApnListNew : public QDialog
{
    Q_OBJECT

public:
    explicit VLK_FormAutoApnListNew(QWidget* parent = nullptr);
    ~VLK_FormAutoApnListNew() override;

    // Numbers the rows; the cells follow the settings.
    void setDefaults();
    void retranslate();
    void showExpanded();

private Q_SLOTS:
    void slot_itemDoubleClicket_TreeWidgetList(QTreeWidgetItem* item, int column);

private:
    void makeRoomForHeadings();

    std::unique_ptr<Ui::VLK_Designer_FormAutoApnListNew> ui_;
};
