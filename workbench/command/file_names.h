#pragma once

// Names of files as the system has them: bytes in any encoding. The program holds each byte as one character
// (prepareFileNames()), so that Qt opens, lists and replaces files under whatever name.

#include <QString>

namespace workbench::command {

// To be called before the first name is taken.
void prepareFileNames();

// For people and programs that read: as UTF-8, a byte that is none as "%NN".
QString readable(const QString& name);
// A name in one line: control characters as "%NN" too.
QString inOneLine(const QString& name);
// A text in one line that is no name: a value, words.
QString valueInOneLine(const QString& value);

// What the system says of a fault comes in its bytes too.
QString systemText(const QString& text);

} // namespace workbench::command
