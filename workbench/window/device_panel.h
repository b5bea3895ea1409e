#pragma once

// The device at a glance: attached or not, how it answers, who it is, what it can do, which configuration is
// open, and the working mode of the plug-in.

#include "window/key_texts.h"

#include <QGroupBox>

class QComboBox;
class QFormLayout;
class QLabel;

namespace workbench {

class HostSession;

class DevicePanel : public QGroupBox
{
    Q_OBJECT

public:
    explicit DevicePanel(HostSession& session, QWidget* parent = nullptr);

    void setMode(int mode);
    // What the configuration window holds.
    void setEdited(const QString& text);
    // What is wrong with the tracker's answers; empty while all is well.
    void setTrouble(const QString& text);
    void refresh();
    void retranslate();
    static const char* modeKey(int mode);

Q_SIGNALS:
    void modeChosen(int mode);

protected:
    void changeEvent(QEvent* event) override;

private:
    QLabel* addRow(QFormLayout* form, const char* name, const char* key);

    HostSession& session_;
    KeyTexts texts_;
    QLabel* symbol_;
    QLabel* state_;
    QLabel* model_;
    QLabel* text1_;
    QLabel* text2_;
    QLabel* capabilities_;
    QLabel* plugin_;
    QLabel* edited_;
    QLabel* trouble_;
    QComboBox* mode_;
};

} // namespace workbench
