#pragma once

// Asks where to save a file. A name without an ending gets that of the kind of file, also where it has points
// in it, as dates have ("Trip 22.11.2026"), before it is asked whether a file of that name is to be replaced.

#include <QFileDialog>

namespace vlk {

class SaveDialog : public QFileDialog
{
    Q_OBJECT

public:
    // `path`: the folder, and the name that is proposed if there is one. `suffix`: "xml".
    SaveDialog(QWidget* parent, const QString& caption, const QString& path, const QString& filter,
               const QString& suffix);

    // Empty when the user cancels.
    QString ask();
    void accept() override;
};

} // namespace vlk
