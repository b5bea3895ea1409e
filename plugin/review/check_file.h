#pragma once

// What is wrong with a configuration file or contradicts itself in it: what a load and a save would not leave
// as it stands (findings), and advice. Missing keys and other spellings of a value are neither.

#include "review/advice.h"
#include "review/difference_text.h"

#include <functional>

struct CXmlSection;

namespace vlk::review {

struct FileRemark
{
    enum class Kind : std::uint8_t { Finding, Advice };

    Kind kind = Kind::Finding;
    Severity severity = Severity::Warning;
    QString path;        // where to mend it
    QStringList paths{}; // of all settings that take part
    // Where the setting stands, in the present language; null for what is no setting.
    QString page{};
    QString group{};
    QString caption{};
    QString text{}; // a sentence
};

// `root` is the element DEVICE. Findings in the order of the document, each unknown or doubled key one, or
// its section one; then advice in the order of the rules.
std::vector<FileRemark> checkDocument(CXmlSection& root, Secrets secrets = Secrets::Masked);

// False where the file is no configuration.
bool checkFile(const QString& path, Secrets secrets, const std::function<void(const FileRemark&)>& take);

} // namespace vlk::review
