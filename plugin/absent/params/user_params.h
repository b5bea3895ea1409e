#pragma once

// The vocabulary of user parameters: the values that the free slots of a record can hold. A stored key is a
// lower-case code and a number ("fs3"); a display text is the code, a comma and the parameter's name
// ("FS, Fuel flow 3"). Keys and texts turn into each other here. Texts are those of the language in which the
// object was made; an unknown key or text gives an empty one.

#include "absent/params/user_param_can.h"
#include "absent/params/user_param_kinds.h"

#include <QHash>

#include <array>
#include <span>

namespace vlk {
struct CatalogueRow;
} // namespace vlk

class VLK_UserParams : public QObject
{
    Q_OBJECT

public:
    explicit VLK_UserParams(QObject* parent = nullptr);

    QString paramCode(userParamType type) const;
    int paramSize(userParamType type) const;
    // "Fuel flow 3"; a kind without a name gives the index alone.
    QString paramName(userParamType type, int index) const;
    // Bytes of an element type ("2u"), 0 for an unknown one.
    int typeCodeSize(const QString& elementType) const;
    // "2 bytes, unsigned", empty for an unknown one.
    QString typeText(const QString& elementType) const { return typeTexts_.value(elementType); }

    QString keyToDisplay(const QString& key) const;
    QString displayToKey(const QString& display) const;

    // The values of a passenger counter, and the key of the one with this name ("co12").
    const QList<VLK_UserParam_CAN*>& counterList() const { return counters_; }
    QString counterKey(const QString& name) const;

    // The catalogues of CAN parameters, counted from 0; made when first asked for.
    const QList<VLK_UserParam_CAN*>& canList(int catalogue);

private:
    QString kindName(userParamType type) const;
    QString display(userParamType type, int index) const;
    QList<VLK_UserParam_CAN*> entriesOf(std::span<const vlk::CatalogueRow> rows);

    QHash<QString, QString> typeTexts_;
    std::array<QString, vlk::kUserParamKinds.size()> kindNames_;
    QList<VLK_UserParam_CAN*> counters_;
    std::array<QList<VLK_UserParam_CAN*>, 3> can_;
};
