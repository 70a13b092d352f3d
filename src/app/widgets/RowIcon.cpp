// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/widgets/RowIcon.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>

namespace {

/// Asks for the colour at every drawing: the style may have changed since.
class RowIconEngine : public QIconEngine {
public:
    explicit RowIconEngine(const QIcon& plain) : plain_(plain) {}

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return scaledPixmap(size, mode, state, 1);
    }

    /// The size is in pixels of the device.
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state,
                         qreal scale) override {
        const bool selected = mode == QIcon::Selected;
        QPixmap result = plain_.pixmap(size / scale, scale, selected ? QIcon::Normal : mode, state);
        if (!result.isNull())
            suit(result, selected);
        return result;
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
               QIcon::State state) override {
        const qreal scale = painter->device()->devicePixelRatio();
        painter->drawPixmap(rect, scaledPixmap(rect.size() * scale, mode, state, scale));
    }

    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return plain_.actualSize(size, mode, state);
    }

    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override {
        return plain_.availableSizes(mode, state);
    }

    bool isNull() override { return plain_.isNull(); }
    QIconEngine* clone() const override { return new RowIconEngine(plain_); }

private:
    static void suit(QPixmap& picture, bool selected) {
        const QPalette palette = QGuiApplication::palette();
        const QRectF all(QPointF(), picture.deviceIndependentSize());
        QPainter painter(&picture);
        if (selected) {
            painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
            painter.fillRect(all, palette.highlightedText());
        } else if (palette.base().color().lightness() < 128) {
            painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
            painter.fillRect(all,
                             QColor(255, 255, 255, 90)); // small and thin, they need more light
        }
    }

    QIcon plain_;
};

} // namespace

QIcon rowIcon(const QString& file) {
    return QIcon(new RowIconEngine(QIcon(file)));
}
