#include "ui/parts/exact_worker.hpp"

#include <utility>

namespace kvt {

void exact_worker::give_up() {
    task_.give_up();
}

void exact_worker::start(std::shared_ptr<const exact_source> source,
                         std::vector<exact_part> parts) {
    give_up();
    if (parts.empty()) {
        return;
    }
    task_.start([this, source = std::move(source),
                 parts = std::move(parts)](const std::atomic<bool>&) -> latest_task::ending {
        auto results = std::make_shared<exact_results>();
        work_out(parts.front(), *source, *results);
        return [this, source, parts, results] {
            // First the next part: who is told of this one may begin another design.
            start(source, {parts.begin() + 1, parts.end()});
            emit worked_out(parts.front(), *results);
        };
    });
}

}  // namespace kvt
