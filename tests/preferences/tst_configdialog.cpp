// SPDX-License-Identifier: GPL-3.0-or-later
// The preferences, driven as a user does, against a settings file of their own.
#include "app/SettingsFolder.h"
#include "app/settings/KelSystem.h"
#include "preferences/ConfigDialog.h"
#include "preferences/GeneralPage.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>

namespace {

/// A store and the dialog upon it, shown.
struct Preferences {
    Preferences() {
        folder.write(R"({"kelSystem": {"ftu": false, "language": "Process_en"}})");
        system = std::make_unique<KelSystem>(folder.base());
        system->installTranslator(system->language());
        dialog = std::make_unique<ConfigDialog>(*system, QStringList{"Light", "Dark", "Blue"});
        dialog->show();
    }
    ~Preferences() { system->installTranslator("Process_en"); }

    template <class Control>
    Control* control(const QString& name) const {
        return dialog->findChild<Control*>(name);
    }

    SettingsFolder folder;
    std::unique_ptr<KelSystem> system;
    std::unique_ptr<ConfigDialog> dialog;
};

} // namespace

class TestConfigDialog : public QObject {
    Q_OBJECT

private slots:
    void everythingHasItsTextAndALabel() {
        const Preferences preferences;
        QCOMPARE(preferences.dialog->objectName(), "KelxPreferencesDialog");
        QCOMPARE(preferences.dialog->windowTitle(), "Kelx Preferences");
        const auto* list = preferences.control<QListWidget>("pageList");
        QCOMPARE(list->count(), 1);
        QCOMPARE(list->item(0)->text(), "General");
        QMap<QString, QString> labels;
        for (const QLabel* label : preferences.dialog->findChildren<QLabel*>())
            if (label->buddy() != nullptr)
                labels.insert(label->buddy()->objectName(), label->text());
        QCOMPARE(labels.value("cbLanguage"), "Select Language:");
        QCOMPARE(labels.value("cbMenuColors"), "Menu Colors:");
        QCOMPARE(labels.value("sbMaxLastFiles"), "Maximum number of files in the button list");
        const auto* language = preferences.control<QComboBox>("cbLanguage");
        QStringList names;
        for (int i = 0; i < language->count(); ++i)
            names += language->itemText(i) + '=' + language->itemData(i).toString();
        QCOMPARE(names, QStringList({"English=Process_en", "Español=Process_es",
                                     "Português=Process_pt", "Français=Process_fr"}));
    }

    void showsWhatIsStored() {
        Preferences preferences;
        KelSystem& system = *preferences.system;
        system.setLanguage("Process_pt");
        system.setShowSplash(false);
        system.setTipOfTheDay(true);
        system.setLoadLast(false);
        system.setMenuColor(2);
        system.setMaxLastFiles(4);
        const ConfigDialog dialog(system, {"Light", "Dark", "Blue"});
        QCOMPARE(dialog.findChild<QComboBox*>("cbLanguage")->currentText(), "Português");
        QVERIFY(!dialog.findChild<QCheckBox*>("cbShowSplash")->isChecked());
        QVERIFY(dialog.findChild<QCheckBox*>("cbShowTipsTricks")->isChecked());
        QVERIFY(!dialog.findChild<QCheckBox*>("cbOpenLastDirByStarting")->isChecked());
        QCOMPARE(dialog.findChild<QComboBox*>("cbMenuColors")->currentText(), "Blue");
        QCOMPARE(dialog.findChild<QSpinBox*>("sbMaxLastFiles")->value(), 4);
        system.setMenuColor(17); // more than there are
        const ConfigDialog other(system, {"Light", "Dark", "Blue"});
        QCOMPARE(other.findChild<QComboBox*>("cbMenuColors")->currentText(), "Light");
        QCOMPARE(system.menuColor(), 17);
    }

    void aClickIsInTheFileAtOnce_data() {
        QTest::addColumn<QString>("box");
        QTest::addColumn<QString>("key");
        QTest::newRow("splash") << "cbShowSplash"
                                << "showSplash";
        QTest::newRow("tips") << "cbShowTipsTricks"
                              << "tipOfTheDay";
        QTest::newRow("last dictionary") << "cbOpenLastDirByStarting"
                                         << "loadLast";
    }

    void aClickIsInTheFileAtOnce() {
        QFETCH(QString, box);
        QFETCH(QString, key);
        const Preferences preferences;
        auto* check = preferences.control<QCheckBox>(box);
        QTest::keyClick(check, Qt::Key_Space);
        for (const char* each : {"showSplash", "tipOfTheDay", "loadLast"})
            QCOMPARE(preferences.folder.valueAt(QString("kelSystem/") + each), each != key);
        QTest::keyClick(check, Qt::Key_Space);
        QCOMPARE(preferences.folder.valueAt("kelSystem/" + key), true);
    }

    void menuColorsAndFileCountsTellTheWindow() {
        const Preferences preferences;
        QSignalSpy colors(preferences.dialog.get(), &ConfigDialog::menuColorChanged);
        QSignalSpy files(preferences.dialog.get(), &ConfigDialog::maxLastFilesChanged);
        QTest::keyClick(preferences.control<QComboBox>("cbMenuColors"), Qt::Key_End);
        QCOMPARE(colors.size(), 1);
        QCOMPARE(colors.first().first().toInt(), 2);
        QCOMPARE(preferences.folder.valueAt("kelSystem/menuColor"), 2);
        auto* count = preferences.control<QSpinBox>("sbMaxLastFiles");
        count->setFocus();
        count->selectAll();
        QTest::keyClicks(count, "25");
        QCOMPARE(files.size(), 0); // not with the first digit
        QTest::keyClick(count, Qt::Key_Enter);
        QCOMPARE(files.size(), 1);
        QCOMPARE(preferences.folder.valueAt("kelSystem/maxLastFiles"), 25);
        QCOMPARE(preferences.folder.questions, QStringList()); // Enter pressed no button
        QVERIFY(preferences.dialog->isVisible());
    }

    void aLanguageTakesEffectAtOnce() {
        const Preferences preferences;
        QSignalSpy changed(preferences.dialog.get(), &ConfigDialog::languageChanged);
        QTest::keyClick(preferences.control<QComboBox>("cbLanguage"), Qt::Key_Down);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.first().first().toString(), "Process_es");
        QCOMPARE(preferences.folder.valueAt("kelSystem/language"), "Process_es");
        QCOMPARE(preferences.system->shortLanguage(), "es");
        QCOMPARE(QCoreApplication::translate("SelectorLanguageDlg", "Language"), "Idioma");
        const auto* buttons = preferences.dialog->findChild<QDialogButtonBox*>();
        QTRY_COMPARE(buttons->button(QDialogButtonBox::Close)->text(), "Cerrar");
        QTest::keyClick(preferences.control<QComboBox>("cbLanguage"), Qt::Key_Up);
        QTRY_COMPARE(buttons->button(QDialogButtonBox::Close)->text(), "Close");
    }

    void initialSettingsAskFirst() {
        Preferences preferences;
        QSignalSpy reset(preferences.dialog.get(), &ConfigDialog::settingsReset);
        auto* button = preferences.control<QPushButton>("pbInitialSettings");
        QTest::keyClick(preferences.control<QComboBox>("cbLanguage"), Qt::Key_End);
        QTest::keyClick(preferences.control<QCheckBox>("cbShowSplash"), Qt::Key_Space);
        preferences.system->addRecentProject("/data/a.prj.json");
        const QByteArray before = preferences.folder.read();
        preferences.folder.answer = Choice::No;
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(preferences.folder.questions.size(), 1);
        QCOMPARE(preferences.folder.read(), before);
        QCOMPARE(reset.size(), 0);
        preferences.folder.answer = Choice::Yes;
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(reset.size(), 1);
        QCOMPARE(preferences.folder.valueAt("kelSystem/language"), "Process_en");
        QCOMPARE(preferences.folder.valueAt("kelSystem/showSplash"), true);
        QCOMPARE(preferences.folder.valueAt("kelSystem/ftu"), false);
        QCOMPARE(preferences.system->recentProjects(), QStringList());
        QCOMPARE(preferences.control<QComboBox>("cbLanguage")->currentText(), "English");
        QVERIFY(preferences.control<QCheckBox>("cbShowSplash")->isChecked());
        QCOMPARE(QCoreApplication::translate("SelectorLanguageDlg", "Language"), "Language");
    }

    void escapeAndCloseAskTheOwner() {
        Preferences preferences;
        QMdiArea area;
        area.setViewMode(QMdiArea::TabbedView);
        QMdiSubWindow* window = area.addSubWindow(preferences.dialog.release());
        window->setAttribute(Qt::WA_DeleteOnClose);
        area.show();
        auto* dialog = qobject_cast<ConfigDialog*>(window->widget());
        QSignalSpy asked(dialog, &ConfigDialog::closeRequested);
        QTest::keyClick(dialog, Qt::Key_Escape);
        QCOMPARE(asked.size(), 1);
        QVERIFY(dialog->isVisible()); // no empty tab
        QTest::mouseClick(dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Close),
                          Qt::LeftButton);
        QCOMPARE(asked.size(), 2);
        connect(dialog, &ConfigDialog::closeRequested, window, &QMdiSubWindow::close);
        QTest::keyClick(dialog, Qt::Key_Escape);
        QTRY_VERIFY(area.subWindowList().isEmpty());
    }

    void nothingIsCutOff() {
        const Preferences preferences;
        const auto* list = preferences.control<QListWidget>("pageList");
        QVERIFY(list->viewport()->width() >= list->sizeHintForColumn(0));
        for (const QWidget* widget :
             preferences.control<QWidget>("GeneralPage")->findChildren<QWidget*>())
            if (widget->isVisible() && !widget->objectName().startsWith("qt_"))
                QVERIFY2(widget->width() >= widget->minimumSizeHint().width() &&
                             widget->height() >= widget->minimumSizeHint().height(),
                         qPrintable(widget->objectName()));
        const QString picture = qEnvironmentVariable("KELVORAX_PICTURES");
        if (!picture.isEmpty())
            QVERIFY(preferences.dialog->grab().save(picture + "/preferences.png"));
    }
};

QTEST_MAIN(TestConfigDialog)
#include "tst_configdialog.moc"
