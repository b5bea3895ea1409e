#pragma once

// The table by which the tracker picks the access point of a SIM by itself: ten rows of operator code,
// access point name, login and password, all free text. The cells are the data; they live in the group
// AUTOAPN of the section TRANS, forty keys in the order of the rows. A missing key takes its cell's factory
// text, an empty one stays empty.

#include <QDialog>

#include <memory>

struct CXmlSection;
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

    // `trans` is the section TRANS.
    void loadFromXml(CXmlSection* trans);
    // Into a new group.
    void saveToXml(CXmlSection* trans);
    // Into the group that is there, or a new one.
    void saveToXmlQuick(CXmlSection* trans);
    void setDefaults();
    void retranslate();
    void showExpanded();

private Q_SLOTS:
    void slot_itemDoubleClicket_TreeWidgetList(QTreeWidgetItem* item, int column);

private:
    void fitColumns();
    void saveInto(std::unique_ptr<CXmlSection> group);

    std::unique_ptr<Ui::VLK_Designer_FormAutoApnListNew> ui_;
};
