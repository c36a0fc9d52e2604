#include "corvane/platform/system/display/sdl/shared_buffer.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>
#include <wayland-client.h>

#include <utility>

namespace corvane::system {

namespace {

class Descriptor {
 public:
  explicit Descriptor(int fd) : fd_(fd) {}
  ~Descriptor() {
    if (fd_ >= 0) close(fd_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int get() const { return fd_; }

 private:
  int fd_;
};

}  // namespace

std::unique_ptr<SharedBuffer> SharedBuffer::create(wl_shm* memory, SIZE size,
                                                   std::function<void()> released) {
  std::unique_ptr<SharedBuffer> buffer(new SharedBuffer(size, std::move(released)));
  return buffer->allocate(memory) ? std::move(buffer) : nullptr;
}

SharedBuffer::SharedBuffer(SIZE size, std::function<void()> released)
    : size_(size), released_(std::move(released)) {}

SharedBuffer::~SharedBuffer() {
  if (native_ != nullptr) wl_buffer_destroy(native_);
  if (pixels_ != nullptr) munmap(pixels_, bytes());
}

std::size_t SharedBuffer::bytes() const {
  return sizeof(Pixel) * static_cast<std::size_t>(size_.cx) * static_cast<std::size_t>(size_.cy);
}

bool SharedBuffer::allocate(wl_shm* memory) {
  const Descriptor file(memfd_create("corvane-frame", MFD_CLOEXEC));
  // All of it at once: a page that is missing later would end the process.
  if (file.get() < 0 || posix_fallocate(file.get(), 0, static_cast<off_t>(bytes())) != 0) {
    return false;
  }
  void* const mapped = mmap(nullptr, bytes(), PROT_READ | PROT_WRITE, MAP_SHARED, file.get(), 0);
  if (mapped == MAP_FAILED) return false;
  pixels_ = static_cast<Pixel*>(mapped);
  wl_shm_pool* const pool = wl_shm_create_pool(memory, file.get(), static_cast<int>(bytes()));
  native_ =
      wl_shm_pool_create_buffer(pool, 0, size_.cx, size_.cy,
                                size_.cx * static_cast<int>(sizeof(Pixel)), WL_SHM_FORMAT_XRGB8888);
  wl_shm_pool_destroy(pool);
  static constexpr wl_buffer_listener kListener{&SharedBuffer::on_release};
  wl_buffer_add_listener(native_, &kListener, this);
  return true;
}

void SharedBuffer::attach(wl_surface* surface) {
  free_ = false;
  wl_surface_attach(surface, native_, 0, 0);
}

void SharedBuffer::on_release(void* buffer, wl_buffer*) {
  auto* const self = static_cast<SharedBuffer*>(buffer);
  self->free_ = true;
  self->released_();
}

}  // namespace corvane::system
