#include "ui/parts/study_worker.hpp"

#include "app/desk/delivered_module.hpp"
#include "app/program.hpp"
#include "app/study/study_problem.hpp"
#include "ui/shell/qt_text.hpp"

#include <QMutexLocker>

#include <algorithm>
#include <utility>

namespace kvt {

namespace {

constexpr int REPORT_MS = 100;
constexpr double MS_A_SECOND = 1000.0;
/// Before that nobody knows how long the designs take.
constexpr quint64 DONE_BEFORE_GUESSING = 20;

}  // namespace

study_worker::study_worker(QObject* parent) : QObject(parent) {
    reporter_.setInterval(REPORT_MS);
    connect(&reporter_, &QTimer::timeout, this, &study_worker::report);
}

std::shared_ptr<const study> study_worker::start(std::shared_ptr<const program> base,
                                                 const study_document& document) {
    if (document.searches) {
        search_plan plan = plan_of_search(document);
        if (document.begins_with_assist) {
            if (auto assisted = assisted_texts(*base, plan.variables)) {
                plan.first.push_back(*assisted);
            }
        }
        auto search = std::make_shared<design_search>(*base, plan);
        auto designs = std::make_shared<const study>(search->designs());
        begin(document.budget);
        run_search(std::move(search), base->app_state.language);
        return designs;
    }
    auto designs = std::make_shared<const study>(*base, plan_of_sample(document));
    begin(designs->size());
    run_sample(designs);
    return designs;
}

void study_worker::begin(quint64 count) {
    news_ = std::make_shared<news>();
    count_ = count;
    is_running_ = true;
    clock_.start();
    reporter_.start();
}

void study_worker::run_sample(const std::shared_ptr<const study>& designs) {
    task_.start(
        [this, designs, told = news_](const std::atomic<bool>& is_given_up) -> latest_task::ending {
            run_study(
                *designs, {0, designs->size()}, processor_count(),
                [&](study_row&& row) {
                    const QMutexLocker lock(&told->mutex);
                    ++told->done;
                    if (row.meets_conditions) {
                        told->rows.push_back(std::move(row));
                    }
                    return true;
                },
                &is_given_up);
            return [this] { end({}); };
        });
}

void study_worker::run_search(std::shared_ptr<design_search> search, std::int16_t language) {
    task_.start([this, search = std::move(search), language,
                 told = news_](const std::atomic<bool>& is_given_up) -> latest_task::ending {
        try {
            search->run(
                processor_count(), delivered_module("kvt_search.so"),
                [&](const study_row& row) {
                    const QMutexLocker lock(&told->mutex);
                    ++told->done;
                    told->rows.push_back(row);
                },
                &is_given_up);
        } catch (const study_problem& problem) {
            return [this, told_problem = qt_text(problem.text(language))] { end(told_problem); };
        }
        return [this] { end({}); };
    });
}

void study_worker::report() {
    std::vector<study_row> rows;
    quint64 done = 0;
    {
        const QMutexLocker lock(&news_->mutex);
        rows.swap(news_->rows);
        done = news_->done;
    }
    if (!rows.empty()) {
        emit came(rows);
    }
    const double seconds = static_cast<double>(clock_.elapsed()) / MS_A_SECOND;
    const double left = static_cast<double>(count_ - std::min(done, count_));
    const bool can_guess = done >= DONE_BEFORE_GUESSING;
    emit progressed(done, count_, can_guess ? seconds / static_cast<double>(done) * left : -1.0);
}

void study_worker::stop() {
    if (is_running_) {
        task_.give_up();
        end({});
    }
}

void study_worker::end(const QString& problem) {
    reporter_.stop();
    report();
    is_running_ = false;
    emit ended(problem);
}

}  // namespace kvt
