#include "windows/choices.h"

#include <QComboBox>
#include <QCoreApplication>

namespace vlk {

QString choiceText(const Choice& choice)
{
    return QString::fromLatin1(choice.format).arg(QCoreApplication::translate("vlk", choice.text));
}

void fillChoices(QComboBox* box, std::span<const Choice> choices)
{
    box->clear();
    for (const Choice& choice : choices)
        box->addItem(choiceText(choice), QString::fromLatin1(choice.code));
}

void selectChoice(QComboBox* box, const QString& code, const QString& fallback)
{
    int index = box->findData(code);
    if (index < 0 && !fallback.isEmpty())
        index = box->findData(fallback);
    box->setCurrentIndex(index);
}

QString currentChoice(const QComboBox* box, const QString& none)
{
    return box->currentIndex() < 0 ? none : box->currentData().toString();
}

} // namespace vlk
