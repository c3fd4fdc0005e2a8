#include "base/zeroed_array.hpp"

#include <cstdlib>
#include <mutex>
#include <new>
#include <unordered_map>
#include <vector>

namespace kvt {

namespace {

constexpr std::size_t SHARED_COUNT = 72001;

/// What arrays without memory show. Never written to, and not constant: a constant would fill the
/// program file with zeros.
double all_zero[SHARED_COUNT];

}  // namespace

/// Memory of arrays that are gone, for the next ones of the same size: asked of the system anew it
/// would cost a page fault a page, and designs are calculated by the thousand. Any thread may call.
class array_store {
  public:
    using memory = zeroed_array::shared_memory;

    /// All 0.
    memory* take(std::size_t size) {
        memory* kept = take_kept(size);
        if (kept == nullptr) {
            return make(size);
        }
        std::fill_n(kept->numbers(), kept->used, 0.0);
        kept->used = 0;
        kept->owners.store(1, std::memory_order_relaxed);
        return kept;
    }

    void give_back(memory* gone, std::size_t size) noexcept {
        if (!keep(gone, size)) {
            std::free(gone);
        }
    }

  private:
    static memory* make(std::size_t size) {
        void* fresh = std::calloc(1, bytes_of(size));
        if (fresh == nullptr) {
            throw std::bad_alloc();
        }
        return new (fresh) memory{1, 0};
    }

    static std::size_t bytes_of(std::size_t size) { return sizeof(memory) + size * sizeof(double); }

    memory* take_kept(std::size_t size) {
        const std::scoped_lock lock(mutex_);
        const auto found = kept_.find(size);
        if (found == kept_.end() || found->second.empty()) {
            return nullptr;
        }
        memory* const last = found->second.back();
        found->second.pop_back();
        kept_bytes_ -= bytes_of(size);
        return last;
    }

    bool keep(memory* gone, std::size_t size) noexcept try {
        const std::scoped_lock lock(mutex_);
        if (kept_bytes_ + bytes_of(size) > KVT_KEPT_ARRAY_BYTES) {
            return false;
        }
        kept_[size].push_back(gone);
        kept_bytes_ += bytes_of(size);
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }

    std::mutex mutex_;
    std::unordered_map<std::size_t, std::vector<memory*>> kept_;
    std::size_t kept_bytes_ = 0;
};

namespace {

/// It is there as long as the process: arrays of any thread may outlive everything else.
array_store& store() {
    static array_store* const only = new array_store;
    return *only;
}

}  // namespace

zeroed_array::zeroed_array(std::size_t size) {
    size_as(size);
}

zeroed_array::zeroed_array(const zeroed_array& other) noexcept
    : size_(other.size_), memory_(other.memory_) {
    if (memory_ != nullptr) {
        memory_->owners.fetch_add(1, std::memory_order_relaxed);
    }
}

void zeroed_array::assign(std::size_t size, double value) {
    size_as(size);
    if (value != 0.0) {
        std::fill_n(data(), size, value);
    }
}

double* zeroed_array::data() {
    double* const numbers = is_own() ? memory_->numbers() : make_own();
    if (memory_ != nullptr) {
        memory_->used = size_;
    }
    return numbers;
}

/// Nothing to write to in an empty array.
double* zeroed_array::make_own() {
    if (size_ == 0) {
        return nullptr;
    }
    const zeroed_array shared = std::move(*this);
    size_ = shared.size_;
    make();
    if (shared.memory_ != nullptr) {
        std::copy_n(shared.memory_->numbers(), shared.memory_->used, memory_->numbers());
        memory_->used = shared.memory_->used;
    }
    return memory_->numbers();
}

void zeroed_array::make() {
    memory_ = store().take(size_);
}

void zeroed_array::let_go() noexcept {
    if (memory_ != nullptr && memory_->owners.fetch_sub(1, std::memory_order_acq_rel) == 1) {
        store().give_back(memory_, size_);
    }
    memory_ = nullptr;
}

void zeroed_array::size_as(std::size_t size) {
    let_go();
    size_ = size;
    if (size > SHARED_COUNT) {
        make();
    }
}

const double* zeroed_array::shared_zeros() {
    return all_zero;
}

}  // namespace kvt
