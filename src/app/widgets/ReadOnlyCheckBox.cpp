// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/widgets/ReadOnlyCheckBox.h"

#include <QApplication>
#include <QEvent>

ReadOnlyCheckBox::ReadOnlyCheckBox(QWidget* parent) : QCheckBox(parent) {
    setEnabled(false);
    takeReadableColours();
}

void ReadOnlyCheckBox::takeReadableColours() {
    QPalette colours = palette();
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text})
        colours.setColor(QPalette::Disabled, role,
                         QApplication::palette(this).color(QPalette::Active, role));
    if (colours != palette())
        setPalette(colours);
}

void ReadOnlyCheckBox::changeEvent(QEvent* event) {
    QCheckBox::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange)
        takeReadableColours();
}
