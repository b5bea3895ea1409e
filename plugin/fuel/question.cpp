#include "fuel/question.h"

#include "fuel/table/fuel_sensors.h"
#include "windows/page_style.h"

#include <QMessageBox>
#include <QPushButton>

namespace vlk {

bool agrees(QWidget* parent, const QString& text, const char* noKey, const QString& hint)
{
    QMessageBox box(QMessageBox::Warning, fuelWord("wrd_005"), text, QMessageBox::NoButton, parent);
    box.setInformativeText(hint);
    auto* yes = box.addButton(fuelWord("wrd_001"), QMessageBox::YesRole);
    auto* no = box.addButton(fuelWord(noKey), QMessageBox::NoRole);
    dressMessageBox(box);
    // The words are those of values too, so they name no letter themselves.
    for (QPushButton* button : {yes, no})
        button->setShortcut(QKeySequence::mnemonic(QLatin1Char('&') + button->text()));
    box.setDefaultButton(no);
    box.setEscapeButton(no);
    box.exec();
    return box.clickedButton() == yes;
}

void warn(QWidget* parent, const QString& text)
{
    QMessageBox box(QMessageBox::Warning, fuelWord("wrd_005"), text, QMessageBox::NoButton, parent);
    box.addButton(fuelWord("wrd_003"), QMessageBox::AcceptRole);
    box.exec();
}

} // namespace vlk
