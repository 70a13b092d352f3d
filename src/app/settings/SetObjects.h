// SPDX-License-Identifier: GPL-3.0-or-later
// The top-level objects of the settings file by name. What they contain stands in SettingsKeys.cpp.
#pragma once

#include "app/settings/SetBasis.h"

class SetKelSystem : public SetGroup {
    Q_OBJECT

public:
    explicit SetKelSystem(const SettingsValues& values)
        : SetGroup(QStringLiteral("kelSystem"), values) {}
};

class SetDictionary : public SetGroup {
    Q_OBJECT

public:
    explicit SetDictionary(const SettingsValues& values)
        : SetGroup(QStringLiteral("dictionary"), values) {}
};

class SetMainForm : public SetGroup {
    Q_OBJECT

public:
    explicit SetMainForm(const SettingsValues& values)
        : SetGroup(QStringLiteral("mainForm"), values) {}
};

class SetProgressForm : public SetGroup {
    Q_OBJECT

public:
    explicit SetProgressForm(const SettingsValues& values)
        : SetGroup(QStringLiteral("progressForm"), values) {}
};

class SetReportForm : public SetGroup {
    Q_OBJECT

public:
    explicit SetReportForm(const SettingsValues& values)
        : SetGroup(QStringLiteral("reportForm"), values) {}
};

class SetGraphForm : public SetGroup {
    Q_OBJECT

public:
    explicit SetGraphForm(const SettingsValues& values)
        : SetGroup(QStringLiteral("graphForm"), values) {}
};

class SetMapForm : public SetGroup {
    Q_OBJECT

public:
    explicit SetMapForm(const SettingsValues& values)
        : SetGroup(QStringLiteral("mapForm"), values) {}
};

class SetProjectForm : public SetGroup {
    Q_OBJECT

public:
    explicit SetProjectForm(const SettingsValues& values)
        : SetGroup(QStringLiteral("projectForm"), values) {}
};

class SetCmdEditor : public SetGroup {
    Q_OBJECT

public:
    explicit SetCmdEditor(const SettingsValues& values)
        : SetGroup(QStringLiteral("cmdEditor"), values) {}
};

class SetSelEditor : public SetGroup {
    Q_OBJECT

public:
    explicit SetSelEditor(const SettingsValues& values)
        : SetGroup(QStringLiteral("selEditor"), values) {}
};

class SetOutputIndex : public SetGroup {
    Q_OBJECT

public:
    explicit SetOutputIndex(const SettingsValues& values)
        : SetGroup(QStringLiteral("outputIndex"), values) {}
};

class SetExpBuilder : public SetGroup {
    Q_OBJECT

public:
    explicit SetExpBuilder(const SettingsValues& values)
        : SetGroup(QStringLiteral("exprBlder"), values) {}
};

class SetMapProperties : public SetGroup {
    Q_OBJECT

public:
    explicit SetMapProperties(const SettingsValues& values)
        : SetGroup(QStringLiteral("mapProperties"), values) {}
};

class SetDataProperties : public SetGroup {
    Q_OBJECT

public:
    explicit SetDataProperties(const SettingsValues& values)
        : SetGroup(QStringLiteral("datasetProperties"), values) {}
};

class SetSampleError : public SetGroup {
    Q_OBJECT

public:
    explicit SetSampleError(const SettingsValues& values)
        : SetGroup(QStringLiteral("sampleError"), values) {}
};

class SetMiniPreferences : public SetGroup {
    Q_OBJECT

public:
    explicit SetMiniPreferences(const SettingsValues& values)
        : SetGroup(QStringLiteral("miniPreferences"), values) {}
};

class SetProcessChoice : public SetGroup {
    Q_OBJECT

public:
    explicit SetProcessChoice(const SettingsValues& values)
        : SetGroup(QStringLiteral("processChoice"), values) {}
};

class SetTablePresentation : public SetGroup {
    Q_OBJECT

public:
    explicit SetTablePresentation(const SettingsValues& values)
        : SetGroup(QStringLiteral("tablePresentation"), values) {}
};

class SetTableOmission : public SetGroup {
    Q_OBJECT

public:
    explicit SetTableOmission(const SettingsValues& values)
        : SetGroup(QStringLiteral("tableOmission"), values) {}
};

/// The place of one of the smaller windows.
class SetWidgetProperties : public SetGroup {
    Q_OBJECT

public:
    using SetGroup::SetGroup;
};
