#include "platform/qt/command_line.hpp"

#include <QFileInfo>
#include <QStandardPaths>

namespace kov::qt {
namespace {

/// The host's file for a program: with its ending ".exe" or without it; a name without a folder is looked for where the system
/// keeps programs. Empty when there is none.
QString programFile(QString name) {
#ifndef Q_OS_WIN
    name.replace(QLatin1Char('\\'), QLatin1Char('/'));
#endif
    auto bare = name;
    if (bare.endsWith(QStringLiteral(".exe"), Qt::CaseInsensitive)) {
        bare.chop(4);
    }
    for (const auto& candidate : {name, bare}) {
        if (candidate.contains(QLatin1Char('/'))) {
            const QFileInfo file(candidate);
            if (file.isFile() && file.isExecutable()) {
                return file.absoluteFilePath();
            }
        } else if (auto found = QStandardPaths::findExecutable(candidate); !found.isEmpty()) {
            return found;
        }
    }
    return {};
}

} // namespace

QStringList wordsOf(const QString& commandLine) {
    QStringList words;
    QString word;
    bool quoted = false;
    bool begun = false;
    for (const QChar c : commandLine) {
        if (c == QLatin1Char('"')) {
            quoted = !quoted;
            begun = true;
        } else if (!quoted && (c == QLatin1Char(' ') || c == QLatin1Char('\t'))) {
            if (begun) {
                words += word;
            }
            word.clear();
            begun = false;
        } else {
            word += c;
            begun = true;
        }
    }
    if (begun) {
        words += word;
    }
    return words;
}

ProgramCall programCall(const QString& commandLine) {
    const auto line = commandLine.trimmed();
    if (line.startsWith(QLatin1Char('"'))) {
        const auto end = line.indexOf(QLatin1Char('"'), 1);
        return {programFile(line.mid(1, end < 0 ? -1 : end - 1)), end < 0 ? QStringList() : wordsOf(line.mid(end + 1))};
    }
    for (qsizetype end = 0; end < line.size();) {
        end = line.indexOf(QLatin1Char(' '), end + 1);
        end = end < 0 ? line.size() : end;
        if (auto program = programFile(line.left(end)); !program.isEmpty()) {
            return {program, wordsOf(line.mid(end))};
        }
    }
    return {};
}

} // namespace kov::qt
