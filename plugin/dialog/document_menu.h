#pragma once

// At the end of the line above the pages: what is made of a configuration as a whole, and what it is made of.

#include <QPushButton>

class QAction;

namespace vlk {

class DocumentMenu : public QPushButton
{
    Q_OBJECT

public:
    explicit DocumentMenu(QWidget* window);

    void retranslate();

Q_SIGNALS:
    void presetToApply();
    void presetToSave();
    void reportWanted();

private:
    QAction* apply_;
    QAction* save_;
    QAction* report_;
};

} // namespace vlk
