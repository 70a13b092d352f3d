// SPDX-License-Identifier: GPL-3.0-or-later
#include "PropertiesFixture.h"

#include "dictionary/mirror/DictionaryUtil.h"
#include "dictionary/mirror/MirrorBuilder.h"
#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/mirror/TKpVariable.h"
#include "engine/TKelConfigImpl.h"
#include "kel.h"
#include "support/SmallDatabase.h"

void DockShell::addDockLeft(QDockWidget* dock) {
    window_.addDockWidget(Qt::LeftDockWidgetArea, dock);
}

void DockShell::addDockRight(QDockWidget* dock) {
    window_.addDockWidget(Qt::RightDockWidgetArea, dock);
}

QDockWidget* DockShell::dock(const QString& name) const {
    return window_.findChild<QDockWidget*>(name);
}

PropertiesFixture::PropertiesFixture() {
    kel::init(std::make_shared<TKelConfigImpl>());
    writeSmallDatabase(folder_.path());
    answerMessages([this](MessageKind, const QString& text) {
        messages += text;
        return answer;
    });
}

PropertiesFixture::~PropertiesFixture() {
    answerMessages({});
    root.reset();
    dictionary.reset();
    kel::destroy();
}

void PropertiesFixture::open(const QString& path) {
    root.reset();
    const QString file = path.isEmpty() ? folder_.filePath(QStringLiteral("small.kxdb")) : path;
    dictionary = kel::readDictionary(file.toStdString(), nullptr, true);
    rebuild();
    messages.clear();
    answer = Choice::Cancel;
}

void PropertiesFixture::rebuild() {
    root = buildMirror(*dictionary);
}

QString PropertiesFixture::save() {
    QString path = folder_.filePath(QStringLiteral("saved.kxdb"));
    kel::saveDictionary(dictionary, path.toStdString());
    return path;
}

TKpEntity* PropertiesFixture::entity(const QString& name) const {
    return DictionaryUtil().findEntity(root.get(), name);
}

TKpVariable* PropertiesFixture::variable(const QString& fullName) const {
    for (TKpVariable* variable : DictionaryUtil().allVariables(root.get()))
        if (variable->fullName == fullName)
            return variable;
    return nullptr;
}
