// SPDX-License-Identifier: GPL-3.0-or-later
// Runs one program text against a dictionary and gathers what came of it.
#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class TKelDictionary;
class TKelOutput;
class TKelSession;

/// The outputs belong to the session: keep it as long as they are used.
struct ProgramRun {
    bool succeeded = false;
    std::shared_ptr<TKelSession> session;
    std::vector<TKelOutput*> outputs;
    QStringList messages; ///< located messages, errors first, warnings of a successful run too
    QString failure;      ///< the engine's closing text where the run failed
    double seconds = 0;
};

/// Blocks until the program has ended. Throws nothing.
ProgramRun runProgram(const std::shared_ptr<TKelDictionary>& dictionary, const QString& program);
