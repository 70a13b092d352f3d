// SPDX-License-Identifier: GPL-3.0-or-later
// What is open now: the dictionary, its mirror, and the engine's objects of the last run. The state
// only; the forms that edit a project stand above.
#pragma once

#include <QObject>
#include <QString>

#include <memory>
#include <vector>

class TKelDictionary;
class TKelExecute;
class TKelOutput;
class TKelSession;
class TKpEntity;

enum class DictionaryKind { LegacyProject = 0, Dicx = 1, Kxdb = 2, Project = 3 };

/// One for the process. Used on the GUI thread, except for stageDictionary() while a load runs.
class TfrmProject : public QObject {
    Q_OBJECT

public:
    static TfrmProject& instance();

    // Opening: the file being read stands apart, so that a failure leaves what is open.
    void beginOpening(const QString& path, DictionaryKind kind);
    QString openingPath() const { return openingPath_; }
    /// Called by the load thread; clears the dictionary's mark of unsaved changes.
    void stageDictionary(std::shared_ptr<TKelDictionary> dictionary);
    /// The staged dictionary replaces the open one, whose results and mirror go first.
    void adoptStagedDictionary();
    void abandonOpening();
    /// Lets go of everything, in the order in which one depends on the next.
    void close();

    bool isOpen() const { return dictionary_ != nullptr; }
    QString dictionaryPath() const { return dictionaryPath_; }
    void setDictionaryPath(const QString& path) { dictionaryPath_ = path; } ///< after a Save As
    DictionaryKind dictionaryKind() const { return kind_; }
    const std::shared_ptr<TKelDictionary>& dictionary() const { return dictionary_; }
    void setDictionaryKind(DictionaryKind kind) { kind_ = kind; }
    /// The mirror; null where nothing is open. It is rebuilt whole: who holds on to the old one may
    /// go on reading it until mirrorRebuilt() tells to look its names up again.
    const std::shared_ptr<TKpEntity>& mirror() const { return root_; }
    TKpEntity* root() const { return root_.get(); }
    void setRoot(std::shared_ptr<TKpEntity> root);
    bool allPathsFound() const { return allPathsFound_; }
    void setAllPathsFound(bool found) { allPathsFound_ = found; }

    /// Of the last run, whether it ended well or not; null before the first.
    const std::shared_ptr<TKelSession>& session() const { return session_; }
    void setSession(std::shared_ptr<TKelSession> session);
    /// Of the last list of programs; null before the first.
    const std::shared_ptr<TKelExecute>& execute() const { return execute_; }
    void setExecute(std::shared_ptr<TKelExecute> execute);
    /// Of the last run that ended well. They stay readable until others take their place.
    const std::vector<TKelOutput*>& outputs() const { return outputs_; }
    /// Takes the session's outputs: in place of those that are there, or behind them.
    void storeOutputs(bool append);

signals:
    void mirrorRebuilt(); ///< root() is another tree now, or none

private:
    TfrmProject() = default;

    QString openingPath_;
    DictionaryKind openingKind_ = DictionaryKind::Kxdb;
    std::shared_ptr<TKelDictionary> staged_;

    QString dictionaryPath_;
    DictionaryKind kind_ = DictionaryKind::Kxdb;
    bool allPathsFound_ = true;
    std::shared_ptr<TKelDictionary> dictionary_;
    std::shared_ptr<TKpEntity> root_;
    std::shared_ptr<TKelExecute> execute_;
    std::shared_ptr<TKelSession> session_;
    std::vector<TKelOutput*> outputs_;
    std::vector<std::shared_ptr<TKelSession>> outputOwners_; ///< sessions that made the outputs
};
