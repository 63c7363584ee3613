#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QSocketNotifier>
#include <functional>
#include <memory>
#include <vector>

#include "qt/wizard/PreviewRun.h"

namespace plotsmith::qt {

/// Makes a preview in a copy of this process, so that it doesn't change this process and the user doesn't
/// have to wait. There is one preview at a time.
class PreviewWorker {
 public:
  /// A function that makes the preview in the other process.
  using Work = std::function<Preview()>;
  /// A function that gets the result while events are processed. It isn't called after Stop.
  using Done = std::function<void(Preview)>;

  /// Makes a worker. `done` is called with each finished preview.
  explicit PreviewWorker(Done done);
  ~PreviewWorker();
  PreviewWorker(const PreviewWorker&) = delete;
  PreviewWorker& operator=(const PreviewWorker&) = delete;

  /// Returns true if the operating system can copy a process.
  static bool IsPossible();
  /// Stops the current preview and starts a new one. Returns false if no process can be started.
  bool Start(const Work& work);
  /// Stops the current preview, if there is one.
  void Stop();
  /// Returns true while a preview is being made.
  bool IsRunning() const { return process_ > 0; }

 private:
  void Read();
  /// Collects processes that have ended.
  void Reap();

  Done done_;
  std::unique_ptr<QSocketNotifier> notifier_;
  QByteArray bytes_;  ///< The received part of the result.
  int process_ = 0;   ///< The process; 0 for none.
  int pipe_ = -1;
  std::vector<int> killed_;  ///< Processes that were killed but not collected yet.
};

}  // namespace plotsmith::qt
