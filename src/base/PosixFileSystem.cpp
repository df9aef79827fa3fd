#include "base/PosixFileSystem.hpp"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace quenby {
namespace {

struct FileDescriptor {
  int fd = -1;
  explicit FileDescriptor(int value) : fd(value) {}
  FileDescriptor(const FileDescriptor&) = delete;
  FileDescriptor& operator=(const FileDescriptor&) = delete;
  ~FileDescriptor() {
    if (fd >= 0) {
      ::close(fd);
    }
  }
};

struct MemoryFreer {
  void operator()(char* memory) const { std::free(memory); }
};

struct DirectoryCloser {
  void operator()(DIR* directory) const { ::closedir(directory); }
};

std::int64_t modificationNanoseconds(const struct stat& info) {
#if defined(__APPLE__)
  const struct timespec& time = info.st_mtimespec;
#else
  const struct timespec& time = info.st_mtim;
#endif
  return static_cast<std::int64_t>(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

} // namespace

FileAttributes PosixFileSystem::attributes(const std::string& path) const {
  struct stat info {};
  if (::stat(path.c_str(), &info) != 0) {
    return {};
  }
  FileAttributes attributes;
  attributes.exists = true;
  attributes.isDirectory = S_ISDIR(info.st_mode);
  attributes.fileSystemNumber = static_cast<std::uint64_t>(info.st_dev);
  attributes.fileNumber = static_cast<std::uint64_t>(info.st_ino);
  attributes.modificationTime = modificationNanoseconds(info);
  attributes.size = static_cast<std::uint64_t>(info.st_size);
  return attributes;
}

std::optional<std::vector<std::uint8_t>>
PosixFileSystem::readFile(const std::string& path, std::uint64_t maximumBytes) const {
  const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (file.fd < 0) {
    return std::nullopt;
  }
  struct stat info {};
  if (::fstat(file.fd, &info) != 0 || !S_ISREG(info.st_mode) ||
      static_cast<std::uint64_t>(info.st_size) > maximumBytes) {
    return std::nullopt;
  }
  std::vector<std::uint8_t> bytes(static_cast<std::size_t>(info.st_size));
  std::size_t filled = 0;
  while (filled < bytes.size()) {
    const ssize_t got = ::read(file.fd, bytes.data() + filled, bytes.size() - filled);
    if (got < 0) {
      return std::nullopt;
    }
    if (got == 0) {
      bytes.resize(filled); // the file shrank while being read
      break;
    }
    filled += static_cast<std::size_t>(got);
  }
  return bytes;
}

std::vector<std::string> PosixFileSystem::listDirectory(const std::string& path) const {
  std::vector<std::string> names;
  const std::unique_ptr<DIR, DirectoryCloser> directory(::opendir(path.c_str()));
  if (!directory) {
    return names;
  }
  while (const dirent* entry = ::readdir(directory.get())) {
    const std::string_view name = entry->d_name;
    if (name != "." && name != "..") {
      names.emplace_back(name);
    }
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::optional<std::string> PosixFileSystem::canonicalPath(const std::string& path) const {
  // With a null buffer, realpath allocates one of the right size with malloc.
  const std::unique_ptr<char, MemoryFreer> resolved(::realpath(path.c_str(), nullptr));
  if (!resolved) {
    return std::nullopt;
  }
  return std::string(resolved.get());
}

bool PosixFileSystem::writeFileAtomically(const std::string& path,
                                          const std::vector<std::uint8_t>& bytes) {
  // A temporary file beside the target, so the rename stays on one volume and replaces it in
  // one step.
  const auto slash = path.find_last_of('/');
  const std::string directory = slash == std::string::npos ? "." : path.substr(0, slash + 1);
  const std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
  std::string temporary = directory + "." + name + ".XXXXXX";
  FileDescriptor file(::mkstemp(temporary.data()));
  if (file.fd < 0) {
    return false;
  }
  // mkstemp creates the file readable by its owner only; a saved document is as readable as
  // any other the user saves under the default mask.
  bool written = ::fchmod(file.fd, 0644) == 0;
  for (std::size_t offset = 0; written && offset < bytes.size();) {
    const auto count = ::write(file.fd, bytes.data() + offset, bytes.size() - offset);
    if (count < 0 && errno == EINTR) {
      continue;
    }
    written = count > 0;
    offset += written ? static_cast<std::size_t>(count) : 0;
  }
  written = written && ::fsync(file.fd) == 0;
  if (::close(file.fd) != 0) {
    written = false;
  }
  file.fd = -1;
  if (!written || ::rename(temporary.c_str(), path.c_str()) != 0) {
    ::unlink(temporary.c_str());
    return false;
  }
  return true;
}

} // namespace quenby
