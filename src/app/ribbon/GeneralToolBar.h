// SPDX-License-Identifier: GPL-3.0-or-later
// The page GENERAL: preferences, the help pages and what this program is.
#pragma once

#include "app/ribbon/RibbonPage.h"

#include <QUrl>

struct RibbonState;

class GeneralToolBar : public RibbonPage {
    Q_OBJECT

public:
    GeneralToolBar(tt::TabToolbar& toolbar, const RibbonState& state);

    /// Where the help pages of a language ("Process_es") begin. All but Spanish read English ones.
    static QUrl helpUrl(const QString& language);
    static QString aboutText(const QString& application, const QString& version,
                             const QString& engineVersion);

public slots:
    void on_about();
    void on_help();
    void on_preferences();

signals:
    void preferences();

private:
    QString language_;
    QString engineVersion_;
};
