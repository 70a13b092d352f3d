// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/properties/DataFileForm.h"

#include "TKelDictionary.h"
#include "TKelEntity.h"
#include "app/dialogs/KelvoraFileDialog.h"
#include "app/widgets/ElidedLabel.h"
#include "app/widgets/ReadOnlyCheckBox.h"

#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QPushButton>

DataFileForm::DataFileForm(QWidget* parent)
    : QWidget(parent), shown_(new ElidedLabel), found_(new ReadOnlyCheckBox) {
    auto* caption = new QLabel(tr("Input data file for the loading process"));
    caption->setWordWrap(true);
    shown_->setObjectName(QStringLiteral("lbDataFile"));
    found_->setObjectName(QStringLiteral("cbFoundOnDisk"));
    found_->setText(tr("Is found on disk"));
    auto* browse = new QPushButton(tr("Browse..."));
    browse->setObjectName(QStringLiteral("btnBrowse"));
    browse->setAutoDefault(false);
    browse->setToolTip(tr("Choose another data file"));
    caption->setBuddy(browse);
    connect(browse, &QPushButton::clicked, this, &DataFileForm::browse);
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(caption, 0, 0, 1, 2);
    layout->addWidget(shown_, 1, 0);
    layout->addWidget(browse, 1, 1);
    layout->addWidget(found_, 2, 0, 1, 2);
    layout->setColumnStretch(0, 1);
}

void DataFileForm::setPath(const QString& path) {
    path_ = path;
    shown_->setFullText(QDir::toNativeSeparators(path));
    found_->setChecked(QFileInfo(path).isFile());
}

void DataFileForm::browse() {
    const QFileInfo now(path_);
    const QString folder = now.dir().exists() && !path_.isEmpty() ? now.absolutePath() : QString();
    const QString chosen = KelvoraFileDialog(QStringLiteral("DATADICTIONARY"), folder,
                                             tr("Input data file for the loading process"))
                               .openFile(tr("All files (*)"));
    if (chosen.isEmpty() || chosen == path_)
        return;
    setPath(chosen);
    emit pathChanged(chosen);
}

QString DataFileForm::storedName(const QString& path, const TKelEntity* entity) {
    TKelDictionary* dictionary = entity != nullptr ? entity->dictionary() : nullptr;
    if (dictionary == nullptr)
        return path;
    const QString told = QString::fromStdString(dictionary->dataPath());
    const QDir folder(told.isEmpty()
                          ? QFileInfo(QString::fromStdString(dictionary->fileName())).absolutePath()
                          : told);
    const QString relative = folder.relativeFilePath(path);
    return relative.startsWith(QLatin1String("../")) ? path : relative;
}
