// SPDX-License-Identifier: GPL-3.0-or-later
// The code editor that stands hidden behind the tabs: it has the colours and the words of the
// window ready for whoever asks for them there.
#pragma once

#include <QStringListModel>

class QCodeEditor;
class QWidget;
struct EditorLook;
struct Vocabulary;

class SchemeKeeper {
public:
    explicit SchemeKeeper(QWidget& window);

    void setLook(const EditorLook& look);
    void setWords(const Vocabulary& words); ///< besides the reserved ones

private:
    QCodeEditor* editor_;
    QStringListModel* words_;
};
