#include <utility>

#include "qt/wizard/PreviewWorker.h"

namespace plotsmith::qt {

// Windows can't copy a process, so there are no previews.
PreviewWorker::PreviewWorker(Done done) : done_(std::move(done)) {}
PreviewWorker::~PreviewWorker() = default;
bool PreviewWorker::IsPossible() { return false; }
bool PreviewWorker::Start(const Work&) { return false; }
void PreviewWorker::Stop() {}
void PreviewWorker::Read() {}
void PreviewWorker::Reap() {}

}  // namespace plotsmith::qt
