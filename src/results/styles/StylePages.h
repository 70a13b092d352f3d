// SPDX-License-Identifier: GPL-3.0-or-later
// The pages of the editor of table styles: each shows a part of a style and writes it back.
#pragma once

#include "results/styles/TableStyleData.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QSpinBox;
class QVBoxLayout;

class GeneralStylePage : public QWidget {
    Q_OBJECT

public:
    explicit GeneralStylePage(const TableStyleData& style, QWidget* parent = nullptr);
    void writeTo(TableStyleData& style) const;

private:
    void addNames(QFormLayout& form);
    void addFigures(QFormLayout& form, const TableStyleData& style);
    void showSample();

    QLineEdit* name_;
    QLineEdit* label_;
    QSpinBox* decimals_;
    QComboBox* separator_;
    QLabel* sample_;
};

class OneVariableStylePage : public QWidget {
    Q_OBJECT

public:
    explicit OneVariableStylePage(const TableStyleData& style, QWidget* parent = nullptr);
    void writeTo(TableStyleData& style) const;

private:
    QCheckBox* percent_;
    QCheckBox* cumulative_;
    QCheckBox* total_;
    QCheckBox* notApplicable_;
    QCheckBox* missing_;
    QComboBox* order_;
};

class SeveralVariablesStylePage : public QWidget {
    Q_OBJECT

public:
    explicit SeveralVariablesStylePage(const TableStyleData& style, QWidget* parent = nullptr);
    void writeTo(TableStyleData& style) const;

private:
    QCheckBox* notApplicable_;
    QCheckBox* missing_;
    QComboBox* layout_;
};
