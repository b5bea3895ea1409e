#pragma once

// Which curves and bands are shown, ticked in a list that a word narrows down; what is ticked shows at once.
// The choice is kept as a preset under a name.

#include <QDialog>

class QLabel;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QPushButton;

namespace vlk {

class CurvesModel;

class CurveChoice : public QDialog
{
    Q_OBJECT

public:
    // `preset`: the own one that is shown; empty otherwise.
    CurveChoice(CurvesModel* model, const QString& preset, QWidget* parent);

Q_SIGNALS:
    void chosen();
    void presetKept(const QString& name);
    void presetDeleted(const QString& name);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void fill();
    void tick(QListWidgetItem* item);
    void narrow(const QString& words);
    void keep();
    void remove();
    void refreshButtons();

    CurvesModel* model_;
    QString preset_; // whose name stands there until another is typed
    QLineEdit* find_;
    QListWidget* list_;
    QLabel* note_;
    QLineEdit* name_;
    QPushButton* keep_;
    QPushButton* delete_;
};

} // namespace vlk
