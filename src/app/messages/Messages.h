// SPDX-License-Identifier: GPL-3.0-or-later
// Message boxes of the system. A test answers them beforehand and reads what they said.
#pragma once

#include <QString>

#include <functional>

enum class MessageKind { Error, Information, Warning, Question };
enum class Choice { Yes, No, Cancel };

void showError(const QString& text);
void showError(const QString& title, const QString& text);
void showInformation(const QString& text);
void showWarning(const QString& text);
/// Shows rich text, for words of ours only: never for what files or users say.
void showRichInformation(const QString& text);
/// An information box with a title of its own; html holds words of ours only.
void showAbout(const QString& title, const QString& html);
/// True for Yes. There is no Cancel; Escape means No.
bool askYesNo(const QString& title, const QString& text);
/// As askYesNo, with words of its own on the buttons; Enter means Yes where yesIsDefault.
bool askYesNo(const QString& title, const QString& text, const QString& yesText,
              const QString& noText, bool yesIsDefault);
/// As askYesNo, with rich text of ours, a second text below it, and Yes as default.
bool askYesNoRich(const QString& title, const QString& html, const QString& informative);
/// Escape means Cancel.
Choice askYesNoCancel(const QString& title, const QString& text);

/// The same with a box that the user may tick; ticked tells whether that was done.
Choice askYesNoCancel(const QString& title, const QString& text, const QString& boxText,
                      bool& ticked);

/// Takes the user's place: gets every message, and its answer counts for questions.
using MessageAnswer = std::function<Choice(MessageKind, const QString& text)>;
/// An empty function gives the boxes back to the user.
void answerMessages(MessageAnswer answer);
