#include "dialog/document_menu.h"

#include <QMenu>
#include <QShortcut>

#include <utility>

namespace vlk {

DocumentMenu::DocumentMenu(QWidget* window) : QPushButton(window)
{
    setObjectName(QStringLiteral("pushButton_Document"));
    setAutoDefault(false);
    auto* menu = new QMenu(this);
    apply_ = menu->addAction(QString());
    save_ = menu->addAction(QString());
    menu->addSeparator();
    report_ = menu->addAction(QString());
    // When the menu has closed: the button would look pressed from then on.
    for (const auto& [action, signal] : {std::pair(apply_, &DocumentMenu::presetToApply),
                                         {save_, &DocumentMenu::presetToSave},
                                         {report_, &DocumentMenu::reportWanted}})
        connect(action, &QAction::triggered, this, signal, Qt::QueuedConnection);
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
