#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QSocketNotifier>
#include <functional>
#include <memory>
#include <vector>

#include "qt/wizard/PreviewRun.h"

namespace plotsmith::qt {

/// Works out a preview in a process of its own, a copy of this one, so that nothing of the work is seen here
/// and the hands never wait for it. One at a time.
class PreviewWorker {
 public:
  /// Makes the preview, in the other process.
  using Work = std::function<Preview()>;
  /// Is called with the result, while events are handled. Not after Stop.
  using Done = std::function<void(Preview)>;

  explicit PreviewWorker(Done done);
  ~PreviewWorker();
  PreviewWorker(const PreviewWorker&) = delete;
  PreviewWorker& operator=(const PreviewWorker&) = delete;

  /// Whether the operating system can copy a process.
  static bool IsPossible();
  /// Begins, after what was going on has been stopped. Returns false if no process can be started.
  bool Start(const Work& work);
  /// Ends the process, if there is one.
  void Stop();
  bool IsRunning() const { return process_ > 0; }

 private:
  void Read();
  /// Takes leave of processes that have ended.
  void Reap();

  Done done_;
  std::unique_ptr<QSocketNotifier> notifier_;
  QByteArray bytes_;  ///< of the result, as far as it has come
  int process_ = 0;   ///< 0 for none
  int pipe_ = -1;
  std::vector<int> killed_;  ///< processes that were told to end, and may take a moment for it
};

}  // namespace plotsmith::qt
