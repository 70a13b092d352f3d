// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/execution/RunGuard.h"

#include <QObject>
#include <QPointer>

#include <utility>
#include <vector>

namespace {

struct Waiting {
    QPointer<QObject> context;
    std::function<void()> action;
};

int guards = 0;

std::vector<Waiting>& waiting() {
    static std::vector<Waiting> all;
    return all;
}

} // namespace

RunGuard::RunGuard() {
    ++guards;
}

RunGuard::~RunGuard() {
    if (--guards > 0)
        return;
    for (Waiting& one : std::exchange(waiting(), {}))
        if (QObject* context = one.context)
            QMetaObject::invokeMethod(
                context, [context, action = std::move(one.action)] { afterwards(context, action); },
                Qt::QueuedConnection);
}

bool RunGuard::isRunning() {
    return guards > 0;
}

void RunGuard::afterwards(QObject* context, std::function<void()> action) {
    if (isRunning())
        waiting().push_back({context, std::move(action)});
    else
        action();
}
