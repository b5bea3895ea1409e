#pragma once

// One tab of the data-set page: what the page calls on each of its tabs. Every operation of the base does
// nothing; a tab overrides those for which it has widgets.
//
// The mask is a text of 255 characters "0" and "1" (catalogue/field_mask.h). The fill operations replace
// the tab's own positions in it and leave the others; the load operations set the tab's widgets from it.
// There is one of each for the fields of protocol 1.0, of 2.0 and of 3.0; the page goes through all tabs with
// the first before it takes the next.

#include <QString>
#include <QWidget>

struct CXmlSection;

class VLK_Form_Config_Set_Zeta3_Tab : public QWidget
{
    Q_OBJECT

public:
    explicit VLK_Form_Config_Set_Zeta3_Tab(int index, QWidget* parent = nullptr);

    virtual void onDeviceConnected() {}
    virtual void onDeviceDisconnected() {}
    virtual void afterDefaults() {}
    // Whether the record is as small as it has to be.
    virtual void sizeWithinLimit(bool /*within*/) {}
    // All texts and the title.
    virtual void retranslate() {}
    virtual void fillMask10(QString& /*mask*/) {}
    virtual void fillMask20(QString& /*mask*/) {}
    virtual void fillMask30(QString& /*mask*/) {}
    virtual void loadMask10(const QString& /*mask*/) {}
    virtual void loadMask20(const QString& /*mask*/) {}
    virtual void loadMask30(const QString& /*mask*/) {}
    virtual void enableFormat10(bool /*on*/) {}
    virtual void enableFormat20(bool /*on*/) {}
    virtual void enableFormat30(bool /*on*/) {}

    // Bytes that the tab adds to a record beside the fields of its mask.
    virtual int bytesBesideMask() const { return 0; }

    // A form offers a value for the free slots of a record, or withdraws it.
    virtual void userParamAdded(const QString& /*code*/, const QString& /*name*/, const QString& /*third*/,
                                int /*size*/)
    {
    }
    virtual void userParamDeleted(const QString& /*code*/, const QString& /*name*/, const QString& /*third*/,
                                  int /*size*/)
    {
    }
    // What the file holds of the slots, which is looked at behind all pages, whose forms know the names.
    // `root` is the element DEVICE.
    virtual void loadUserParams(CXmlSection* /*root*/) {}
    virtual void saveUserParams(CXmlSection* /*root*/) {}

    // The tab's place in the page's tab widget.
    int tabIndex() const { return index_; }
    void setTabIndex(int index) { index_ = index; }
    QString title() const { return title_; }
    void setTitle(const QString& title) { title_ = title; }

Q_SIGNALS:
    // What a fillMask...() gives has changed, and what bytesBesideMask() gives.
    void maskChanged();
    void bytesBesideMaskChanged();

private:
    int index_;
    QString title_;
};
