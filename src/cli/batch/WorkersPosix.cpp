#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <cstring>
#include <ctime>
#include <poll.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>
#include <utility>
#include <vector>

#include "cli/batch/Workers.h"
#include "runtime/Processors.h"

namespace plotsmith::cli {
namespace {

constexpr std::size_t kNoTask = static_cast<std::size_t>(-1);
constexpr std::array<int, 2> kStopSignals = {SIGINT, SIGTERM};

volatile std::sig_atomic_t stopSignal = 0;

void NoteSignal(int signal) { stopSignal = signal; }

/// Watches the signals that stop the work. They are unblocked only while WaitFor sleeps, so that none is
/// missed.
class SignalWatch {
 public:
  SignalWatch() {
    stopSignal = 0;
    struct sigaction action {};
    action.sa_handler = NoteSignal;
    sigemptyset(&watched_);
    for (std::size_t i = 0; i < kStopSignals.size(); ++i) {
      sigaction(kStopSignals[i], &action, &old_[i]);
      sigaddset(&watched_, kStopSignals[i]);
    }
    sigprocmask(SIG_BLOCK, &watched_, &oldMask_);
  }
  ~SignalWatch() { Restore(); }
  SignalWatch(const SignalWatch&) = delete;
  SignalWatch& operator=(const SignalWatch&) = delete;

  /// Restores the previous state, also in a worker.
  void Restore() {
    for (std::size_t i = 0; i < kStopSignals.size(); ++i) sigaction(kStopSignals[i], &old_[i], nullptr);
    sigprocmask(SIG_SETMASK, &oldMask_, nullptr);
  }
  void WaitFor(std::vector<pollfd>& files) const { ppoll(files.data(), files.size(), nullptr, &oldMask_); }
  /// Returns the signal that stops the work, or 0. An interrupt also reaches the workers and may end them
  /// before WaitFor receives it here.
  int Stopped() const {
    const timespec atOnce{};
    const int waiting = stopSignal == 0 ? sigtimedwait(&watched_, nullptr, &atOnce) : 0;
    if (waiting > 0) stopSignal = waiting;
    return stopSignal;
  }

 private:
  std::array<struct sigaction, kStopSignals.size()> old_{};
  sigset_t watched_{};
  sigset_t oldMask_{};
};

bool ReadAll(int file, void* data, std::size_t size) {
  for (auto* at = static_cast<char*>(data); size > 0;) {
    const ssize_t count = read(file, at, size);
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return false;
    at += count;
    size -= static_cast<std::size_t>(count);
  }
  return true;
}

/// Sends data. Returns false if the other end is closed, without the signal that a write would raise.
bool SendAll(int file, const void* data, std::size_t size) {
  for (const auto* at = static_cast<const char*>(data); size > 0;) {
    const ssize_t count = send(file, at, size, MSG_NOSIGNAL);
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return false;
    at += count;
    size -= static_cast<std::size_t>(count);
  }
  return true;
}

/// A worker process.
struct Worker {
  pid_t process = 0;
  int file = -1;
  std::size_t task = kNoTask;  ///< The current task.
};

/// The main loop of a worker. It reads the number of a task, performs it, and sends the length of the report
/// and the report. It ends when the parent closes the connection or ends. An exception ends the process, so
/// that it never continues with the parent's code.
[[noreturn]] void Work(int file, const std::function<std::string(std::size_t)>& run) noexcept {
  for (std::uint64_t task = 0; ReadAll(file, &task, sizeof task);) {
    const std::string report = run(static_cast<std::size_t>(task));
    const std::uint64_t size = report.size();
    if (!SendAll(file, &size, sizeof size) || !SendAll(file, report.data(), report.size())) break;
  }
  _exit(0);  // The buffered output belongs to the parent, so don't flush it.
}

class WorkerPool {
 public:
  WorkerPool(const WorkerTasks& tasks, std::size_t processes) : tasks_(tasks) {
    for (std::size_t i = 0; i < std::min(processes, tasks.count); ++i) {
      if (!Start() && workers_.empty())
        throw std::system_error(errno, std::generic_category(), "no process can be started");
    }
  }
  ~WorkerPool() {
    for (Worker& worker : workers_) End(worker);
  }
  WorkerPool(const WorkerPool&) = delete;
  WorkerPool& operator=(const WorkerPool&) = delete;

  int Run() {
    while (!workers_.empty() && signals_.Stopped() == 0) {
      std::vector<pollfd> files;
      for (const Worker& worker : workers_) files.push_back({worker.file, POLLIN, 0});
      signals_.WaitFor(files);
      for (const pollfd& file : files) {
        if (file.revents != 0 && signals_.Stopped() == 0) Receive(file.fd);
      }
    }
    if (stopSignal != 0) {
      for (const Worker& worker : workers_) kill(worker.process, SIGTERM);
    }
    return stopSignal;
  }

 private:
  /// Starts a worker and gives it a task. Returns false, with the reason in errno, if that fails.
  bool Start() {
    std::array<int, 2> ends{};
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) return false;
    const pid_t process = fork();
    if (process == 0) {
      signals_.Restore();
      close(ends[0]);
      for (const Worker& other : workers_)
        close(other.file);  // Otherwise the other workers would outlive the parent.
      Work(ends[1], tasks_.run);
    }
    const int reason = errno;
    close(ends[1]);
    if (process < 0) close(ends[0]);
    errno = reason;
    if (process < 0) return false;
    workers_.push_back({process, ends[0], kNoTask});
    GiveTask(workers_.back());
    return true;
  }

  /// Gives a worker the next task, or closes the connection if no task is left.
  void GiveTask(Worker& worker) {
    worker.task = next_ < tasks_.count ? next_++ : kNoTask;
    const std::uint64_t number = worker.task;
    // If the worker can't be reached, reading its answer will detect that it died.
    if (worker.task == kNoTask || !SendAll(worker.file, &number, sizeof number))
      shutdown(worker.file, SHUT_WR);
  }

  void Receive(int file) {
    const auto worker =
        std::find_if(workers_.begin(), workers_.end(), [&](const Worker& one) { return one.file == file; });
    std::uint64_t size = 0;
    TaskEnding ending;
    bool whole = ReadAll(file, &size, sizeof size);
    if (whole) {
      ending.report.resize(size);
      whole = ReadAll(file, ending.report.data(), size);
    }
    const std::size_t task = worker->task;
    if (whole) {
      GiveTask(*worker);
    } else {
      ending = {"", End(*worker)};
      workers_.erase(worker);
    }
    if (task == kNoTask) return;
    tasks_.ended(task, std::move(ending));
    // If no new worker can be started, the others do the rest. If there are none, the run is over.
    if (!whole && next_ < tasks_.count) static_cast<void>(Start());
  }

  /// Waits for the end of the process, whose connection is closed. Returns the reason if it died.
  static std::string End(Worker& worker) {
    close(worker.file);
    int status = 0;
    while (waitpid(worker.process, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFSIGNALED(status) ? sigdescr_np(WTERMSIG(status)) : "it ended early";
  }

  const WorkerTasks& tasks_;
  SignalWatch signals_;
  std::vector<Worker> workers_;
  std::size_t next_ = 0;
};

}  // namespace

int RunInWorkers(const WorkerTasks& tasks, std::size_t processes) {
  return WorkerPool(tasks, processes).Run();
}

std::size_t UsualProcesses() { return 2 * std::size_t{runtime::ProcessorCount()}; }

}  // namespace plotsmith::cli
