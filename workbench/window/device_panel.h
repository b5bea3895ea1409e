#pragma once

// The device at a glance: attached or not, who it is, what it can do, and the working mode of the plug-in.

#include "window/key_texts.h"

#include <QGroupBox>

class HostSession;
class QComboBox;
class QFormLayout;
class QLabel;

class DevicePanel : public QGroupBox
{
    Q_OBJECT

public:
    explicit DevicePanel(HostSession& session, QWidget* parent = nullptr);

    void setMode(int mode);
    void refresh();
    void retranslate();

Q_SIGNALS:
    void modeChosen(int mode);

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
    QComboBox* mode_;
};
