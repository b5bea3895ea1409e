#include "dialog/document_menu.h"

#include <QMenu>
#include <QShortcut>

namespace vlk {

DocumentMenu::DocumentMenu(QWidget* window) : QPushButton(window)
{
    setObjectName(QStringLiteral("pushButton_Document"));
    setAutoDefault(false);
    auto* menu = new QMenu(this);
    apply_ = menu->addAction(QString(), this, &DocumentMenu::presetToApply);
    save_ = menu->addAction(QString(), this, &DocumentMenu::presetToSave);
    menu->addSeparator();
    report_ = menu->addAction(QString(), this, &DocumentMenu::reportWanted);
    setMenu(menu);
    const QKeySequence print(QKeySequence::Print);
    connect(new QShortcut(print, window), &QShortcut::activated, this, &DocumentMenu::reportWanted);
    retranslate();
}

void DocumentMenu::retranslate()
{
    setText(tr("rev_219"));
    apply_->setText(tr("rev_220"));
    save_->setText(tr("rev_221"));
    // In a menu of a button the keys are told, not taken.
    report_->setText(tr("rev_222") + QLatin1Char('\t') +
                     QKeySequence(QKeySequence::Print).toString(QKeySequence::NativeText));
}

} // namespace vlk
