#include <QtCore/QBuffer>
#include <QtCore/QDataStream>
#include <array>
#include <cerrno>
#include <csignal>
#include <exception>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

#include "qt/wizard/PreviewWorker.h"

namespace plotsmith::qt {
namespace {

/// The maximum time of a preview in seconds.
constexpr unsigned kLongest = 30;
/// Previews have a lower priority than the user's input.
constexpr int kNiceness = 10;

QByteArray Packed(const Preview& preview) {
  QByteArray bytes;
  QDataStream stream(&bytes, QIODevice::WriteOnly);
  const QImage& picture = preview.picture;
  stream << QByteArray::fromStdString(preview.message) << picture.size()
         << QByteArray::fromRawData(reinterpret_cast<const char*>(picture.constBits()),
                                    picture.sizeInBytes());
  return bytes;
}

/// Returns nothing if the bytes aren't a complete preview, for example because the process died.
std::optional<Preview> Unpacked(const QByteArray& bytes) {
  QDataStream stream(bytes);
  QByteArray message, pixels;
  QSize size;
  stream >> message >> size >> pixels;
  if (stream.status() != QDataStream::Ok) return std::nullopt;
  Preview preview{{}, message.toStdString()};
  if (!size.isEmpty()) {
    QImage picture(size, QImage::Format_RGB32);
    if (picture.sizeInBytes() != pixels.size()) return std::nullopt;
    std::copy(pixels.begin(), pixels.end(), reinterpret_cast<char*>(picture.bits()));
    preview.picture = std::move(picture);
  }
  return preview;
}

void WriteAll(int file, const QByteArray& bytes) {
  for (qsizetype at = 0; at < bytes.size();) {
    const ssize_t count = write(file, bytes.data() + at, static_cast<std::size_t>(bytes.size() - at));
    if (count < 0 && errno != EINTR) return;
    if (count > 0) at += count;
  }
}

/// The main function of the copied process. It ends without destructors and without flushing buffers, because
/// windows and files belong to the original process.
[[noreturn]] void WorkInCopy(const PreviewWorker::Work& work, int output) {
  alarm(kLongest);
  if (nice(kNiceness) == -1) errno = 0;  // If this fails, the priority stays normal.
  try {
    WriteAll(output, Packed(work()));
  } catch (const std::exception&) {
    // Without a result, the last preview stays.
  }
  _exit(0);
}

}  // namespace

PreviewWorker::PreviewWorker(Done done) : done_(std::move(done)) {}
PreviewWorker::~PreviewWorker() {
  Stop();
  for (const int process : killed_) waitpid(process, nullptr, 0);
}

bool PreviewWorker::IsPossible() { return true; }

bool PreviewWorker::Start(const Work& work) {
  Stop();
  Reap();
  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) return false;
  const pid_t process = fork();
  if (process == 0) WorkInCopy(work, ends[1]);
  close(ends[1]);
  if (process < 0) {
    close(ends[0]);
    return false;
  }
  process_ = process;
  pipe_ = ends[0];
  fcntl(pipe_, F_SETFL, O_NONBLOCK);
  notifier_ = std::make_unique<QSocketNotifier>(pipe_, QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] { Read(); });
  return true;
}

void PreviewWorker::Stop() {
  if (!IsRunning()) return;
  // The notifier may be the caller, so don't delete it at once.
  notifier_->setEnabled(false);
  notifier_.release()->deleteLater();
  close(std::exchange(pipe_, -1));
  kill(process_, SIGKILL);
  killed_.push_back(std::exchange(process_, 0));
  bytes_.clear();
  Reap();
}

void PreviewWorker::Reap() {
  std::erase_if(killed_, [](int process) { return waitpid(process, nullptr, WNOHANG) != 0; });
}

void PreviewWorker::Read() {
  std::array<char, 65536> piece;
  for (;;) {
    const ssize_t count = read(pipe_, piece.data(), piece.size());
    if (count > 0) {
      bytes_.append(piece.data(), count);
    } else if (count == 0) {
      const QByteArray bytes = std::exchange(bytes_, {});
      Stop();
      if (auto preview = Unpacked(bytes)) done_(std::move(*preview));
      return;
    } else if (errno != EINTR) {
      return;  // More data will arrive.
    }
  }
}

}  // namespace plotsmith::qt
