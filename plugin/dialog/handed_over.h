#pragma once

// A configuration that a window has handed over to be written: which of its settings the user has edited, and
// what changes besides, with the reason in the words of the panel of differences.

#include <QByteArray>
#include <QHash>
#include <QSet>
#include <QString>

#include <vector>

namespace vlk {

class ConfigurationReview;

struct HandedOver
{
    QByteArray document;
    QSet<QString> edited;                // paths
    QHash<QString, const char*> notes{}; // keys by path, of what nobody has edited
};

// `replaced`: keys of settings that stand as they were written, while the tracker was brought back since.
HandedOver handedOver(const ConfigurationReview& review, const std::vector<int>& replaced,
                      const QByteArray& document);

} // namespace vlk
