#pragma once

// A tab of the data-set page whose boxes come from the table (settings/data_set_boxes.h): it makes them,
// with their object names, in their groups, and carries out every operation for them.

#include "dataset/form_config_set_zeta3_tab.h"
#include "settings/data_set_boxes.h"

#include <vector>

class QGridLayout;
class QGroupBox;

namespace vlk {

class DataSetBoxesTab : public VLK_Form_Config_Set_Zeta3_Tab
{
    Q_OBJECT

public:
    // `title` is a translation key.
    DataSetBoxesTab(DataSetTab which, int index, const char* title, QWidget* parent = nullptr);

    void retranslate() override;
    void fillMask10(QString& mask) override { fill(MaskVersion::Zeta10, mask); }
    void fillMask20(QString& mask) override { fill(MaskVersion::Zeta20, mask); }
    void fillMask30(QString& mask) override { fill(MaskVersion::Zeta30, mask); }
    void loadMask10(const QString& mask) override { load(MaskVersion::Zeta10, mask); }
    void loadMask20(const QString& mask) override { load(MaskVersion::Zeta20, mask); }
    void loadMask30(const QString& mask) override { load(MaskVersion::Zeta30, mask); }
    void enableFormat10(bool on) override { enable(MaskVersion::Zeta10, on); }
    void enableFormat20(bool on) override { enable(MaskVersion::Zeta20, on); }
    void enableFormat30(bool on) override { enable(MaskVersion::Zeta30, on); }

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    // The box or list of this object name.
    QWidget* box(const char* name) const;

private:
    struct Box
    {
        const DataSetBox* row;
        QWidget* widget;
    };
    struct Group
    {
        const DataSetGroup* row;
        QGroupBox* widget;
        QGridLayout* grid;
        std::vector<QString> columns; // the kinds of boxes that stand in them
        int nextRow = 0;
    };

    void placeGroups();
    void makeBox(const DataSetBox& row, Group& group);
    void place(const DataSetBox& row, QWidget* widget, Group& group);
    void fill(MaskVersion version, QString& mask) const;
    void load(MaskVersion version, const QString& mask);
    void enable(MaskVersion version, bool on);

    const char* const titleKey_;
    std::vector<Group> groups_;
    std::vector<Box> boxes_;
    bool inOneColumn_ = false;
};

} // namespace vlk
