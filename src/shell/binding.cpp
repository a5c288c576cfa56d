#include "shell/binding.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>
#include <utility>

namespace velk {

struct Binding::Bound {
    QPointer<QObject> target;
    std::function<void()> show;
    bool changed = false;
    Outlet::Observation observation = {};
};

namespace {

const QEvent::Type end_of_turn = static_cast<QEvent::Type>(QEvent::registerEventType());

}  // namespace

void Binding::bind(Outlet& outlet, QObject* target, std::function<void()> show) {
    const auto bound = std::make_shared<Bound>();
    bound->target = target;
    bound->show = std::move(show);
    bounds_.push_back(bound);
    bound->show();
    bound->observation = outlet.observe([this, weak = std::weak_ptr<Bound>(bound)](const Outlet&) {
        if (const auto still_bound = weak.lock()) mark(still_bound);
    });
}

void Binding::mark(const std::shared_ptr<Bound>& bound) {
    if (std::exchange(bound->changed, true)) return;
    if (changed_.empty()) QCoreApplication::postEvent(this, new QEvent(end_of_turn));
    changed_.push_back(bound);
}

void Binding::flush() {
    const auto changed = std::exchange(changed_, {});
    for (const auto& bound : changed) {
        bound->changed = false;
        if (bound->target) bound->show();
    }
}

bool Binding::event(QEvent* event) {
    if (event->type() != end_of_turn) return QObject::event(event);
    flush();
    return true;
}

}  // namespace velk
