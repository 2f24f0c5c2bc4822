#include "abandoned.h"

#include <atomic>

namespace tern7 {

namespace {

std::atomic<int> abandonedThreads = 0;

} // namespace

TAbandoned::TAbandoned() {
    ++abandonedThreads;
}

TAbandoned::~TAbandoned() {
    --abandonedThreads;
}

bool TAbandoned::Any() {
    return abandonedThreads > 0;
}

} // namespace tern7
