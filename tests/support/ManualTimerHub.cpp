#include "ManualTimerHub.h"

#include <limits>
#include <vector>

namespace larkspan::test {

namespace {

class Handle final : public TimerHandle {
public:
    explicit Handle(std::function<void()> cancel) : cancel_(std::move(cancel)) {}
    ~Handle() override { cancel_(); }

private:
    std::function<void()> cancel_;
};

}  // namespace

std::unique_ptr<TimerHandle> ManualTimerHub::schedule(double interval, std::function<void()> tick) {
    const auto id = nextId_++;
    (*timers_)[id] = Timer{interval, clock_.now() + interval, std::move(tick)};
    std::weak_ptr<Timers> weak = timers_;
    return std::make_unique<Handle>([weak, id] {
        if (auto timers = weak.lock()) timers->erase(id);
    });
}

void ManualTimerHub::advance(double seconds) {
    const Date target = clock_.now() + seconds;
    for (;;) {
        // The earliest due timer fires first; ties go to the one scheduled first.
        std::uint64_t dueId = 0;
        Date dueAt = std::numeric_limits<Date>::infinity();
        for (const auto& [id, timer] : *timers_) {
            if (timer.nextFire <= target && timer.nextFire < dueAt) {
                dueId = id;
                dueAt = timer.nextFire;
            }
        }
        if (dueAt == std::numeric_limits<Date>::infinity()) break;
        clock_.set(dueAt);
        auto& timer = (*timers_)[dueId];
        timer.nextFire += timer.interval;
        auto tick = timer.tick;  // the tick may cancel its own timer
        tick();
    }
    clock_.set(target);
}

void ManualTimerHub::fireAll() {
    std::vector<std::function<void()>> ticks;
    for (const auto& [id, timer] : *timers_) ticks.push_back(timer.tick);
    for (auto& tick : ticks) tick();
}

}  // namespace larkspan::test
