// SPDX-License-Identifier: GPL-3.0-or-later
#include "ExecuterFixture.h"

#include "dictionary/mirror/TKpEntity.h"
#include "engine/TKelConfigImpl.h"
#include "kel.h"
#include "projects/TfrmProject.h"

#include <QProgressDialog>

void RecordingShell::showStatus(const QString& text, bool busy) {
    statuses += busy ? text + "..." : text;
}

QStringList RecordingShell::showResults(const std::vector<TKelOutput*>& outputs,
                                        const std::shared_ptr<TKelSession>& /*session*/,
                                        const QString& programText) {
    shown += programText;
    if (onResults)
        onResults();
    return outputs.empty() ? QStringList() : writeFaults;
}

QStringList RecordingShell::writeDirectOutputs(const std::vector<TKelOutput*>& outputs) {
    direct = outputs;
    return writeFaults;
}

QProgressDialog* RecordingShell::progress(const char* name) const {
    return window_.findChild<QProgressDialog*>(QLatin1String(name));
}

ExecuterFixture::ExecuterFixture() {
    kel::init(std::make_shared<TKelConfigImpl>());
    answerMessages([this](MessageKind, const QString& text) {
        messages += text;
        return Choice::No;
    });
    shell.window()->show();
}

ExecuterFixture::~ExecuterFixture() {
    TfrmProject::instance().close();
    answerMessages({});
    kel::destroy();
}

void ExecuterFixture::open(const QString& path) {
    TfrmProject& project = TfrmProject::instance();
    project.beginOpening(path, DictionaryKind::Kxdb);
    project.stageDictionary(kel::readDictionary(path.toStdString(), nullptr, true));
    project.adoptStagedDictionary();
}

QStringList ExecuterFixture::rows() const {
    QStringList texts;
    for (int row = 0; row < errors.count(); ++row)
        texts += errors.item(row)->text();
    return texts;
}
