#pragma once

// The differences of a configuration as a table: page, setting, before and now, each line with a check mark
// that chooses it for what is done with the chosen ones. All are chosen when a comparison begins. Of a preset
// what cannot be applied comes first, with the reason and without a check mark.
//
// What nobody has edited stands behind one line a page, which opens, and has no check marks: what quick setup
// makes of any file, or a load fills in, which cannot be taken back, and what comes along with other
// settings, and goes with them. So does what another file or a preset has and quick setup cannot take.

#include "dialog/configuration_review.h"
#include "review/difference_text.h"

#include <QAbstractTableModel>
#include <QHash>
#include <QSet>

namespace vlk {

class DifferenceModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Page, Caption, Before, Now, Note, ColumnCount };

    explicit DifferenceModel(ConfigurationReview& review, QObject* parent = nullptr);

    // What the review tells now, with the marks as they were.
    void refresh();

    const review::Difference& at(int line) const { return lineAt(line).difference; }
    bool isHead(int line) const { return lineAt(line).members > 0; }
    // Shows what stands behind a head, or hides it.
    void toggleHead(int line);
    // What a write would change that nobody has edited; empty where it does nothing.
    QString summary() const;
    // Of the lines on show.
    bool hasNotes() const;
    // Lines that cannot be applied stay as they are.
    void choose(const QVector<int>& lines, bool isChosen);
    // Keys of the chosen lines that can be taken over.
    std::vector<int> chosenKeys() const { return keysOf(unchosen_); }
    // The same, if all were chosen.
    std::vector<int> choosableKeys() const { return keysOf({}); }
    // With a heading, as a spreadsheet takes it.
    QString csv() const;
    // What is on show, but for what can be chosen and is not, with a heading and tabs between the cells.
    struct Copied
    {
        QString text;
        int lines = 0;
        int all = 0; // that there are
    };
    Copied copied() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    struct Line
    {
        review::Difference difference;
        review::DifferenceText text;
        int head = -1;   // the line that it stands behind
        int members = 0; // of a head
    };
    enum class Kind { Own, Unedited, Along, Beyond };

    Kind kindOf(const review::Difference& difference) const;
    Line lineOf(const review::Difference& difference) const;
    // Adds the lines and in front of them their head.
    void addBehindHead(const char* key, std::vector<Line>* lines);
    void showLines();
    const Line& lineAt(int line) const { return lines_[shown_[line]]; }
    static bool hasCheckMark(const Line& line);
    bool isChosen(const Line& line) const { return isChosen(line, unchosen_); }
    static bool isChosen(const Line& line, const QSet<QString>& unchosen);
    std::vector<int> keysOf(const QSet<QString>& unchosen) const;
    // That a preset sets the setting as a whole, of one of many parts.
    static void tellWhole(Line* line, const QString& value);

    ConfigurationReview& review_;
    std::vector<Line> lines_;
    std::vector<int> shown_; // of the lines
    int problems_ = 0;       // how many of them come first, of what cannot be applied
    QSet<QString> unchosen_; // paths
    QString comparison_;     // that they are of
    QHash<QString, QSet<QString>> unchosenOfOthers_;
    QSet<QString> open_; // of heads
};

} // namespace vlk
