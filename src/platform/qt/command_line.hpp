#pragma once

#include <QString>
#include <QStringList>

namespace kov::qt {

/// The words of a command line: parted by blanks, except inside double quotes. Quotes are no part of a word, and no shell
/// looks at it, so nothing else has a meaning.
[[nodiscard]] QStringList wordsOf(const QString& commandLine);

/// The program that the first words of a command line mean, and its arguments. The path of a program may hold blanks without
/// quotes: the shortest beginning that is a program counts. `program` is empty when there is none.
struct ProgramCall {
    QString program;
    QStringList arguments;
};
[[nodiscard]] ProgramCall programCall(const QString& commandLine);

} // namespace kov::qt
