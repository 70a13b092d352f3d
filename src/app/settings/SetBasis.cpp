// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settings/SetBasis.h"

#include "app/settings/SetObjects.h"
#include "app/settings/SettingsKeys.h"

#include <QMetaEnum>

namespace {

using Objects = std::vector<std::unique_ptr<SetBasis>>;

template <class... Classes>
void append(Objects& objects, const SettingsValues& values) {
    (objects.push_back(std::make_unique<Classes>(values)), ...);
}

void appendWidgets(Objects& objects, const SettingsValues& values,
                   std::initializer_list<const char*> keys) {
    for (const char* key : keys)
        objects.push_back(std::make_unique<SetWidgetProperties>(QLatin1String(key), values));
}

/// In the order of the file.
Objects makeObjects(const SettingsValues& values) {
    Objects objects;
    append<SetKelSystem, SetDictionary, SetMainForm, SetProgressForm, SetReportForm, SetGraphForm,
           SetMapForm, SetProjectForm, SetCmdEditor, SetSelEditor, SetOutputIndex, SetExpBuilder,
           SetMapProperties, SetDataProperties>(objects, values);
    appendWidgets(objects, values,
                  {"entProperties", "varProperties", "lookupProperties", "easyTab", "browser",
                   "quickView", "cmdAssist", "displayText", "easyIndic", "XF1", "chooseFile"});
    append<SetSampleError, SetMiniPreferences, SetProcessChoice, SetTablePresentation,
           SetTableOmission>(objects, values);
    return objects;
}

} // namespace

QJsonObject SetPosition::toJson() const {
    return {{QStringLiteral("docked"), docked},
            {QStringLiteral("top"), top},
            {QStringLiteral("left"), left},
            {QStringLiteral("height"), height},
            {QStringLiteral("width"), width},
            // The name of the enumeration, which readers of the file know.
            {QStringLiteral("state"), QLatin1String(QMetaEnum::fromType<state>().name())}};
}

QJsonObject SetGroup::toJson() const {
    return writeSettingsGroup(key, values_);
}

QJsonObject settingsTree(const SettingsValues& values) {
    QJsonObject tree;
    for (const auto& object : makeObjects(values))
        tree.insert(object->key, object->toJson());
    return tree;
}
