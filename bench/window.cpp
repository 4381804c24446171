// Benchmark of the first window: how long a program takes until it is painted.
//
//   bench_window PROGRAM ARGUMENTS...
//
// Starts PROGRAM on the display of the environment, prints the time from then until a window
// of the dialog's width shows the dialog's background, and waits for the program's end. The X
// server has to say 96 dots an inch, since the dialog is scaled by what it says. A minute without
// such a window ends the benchmark.

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

#include "bench/stopwatch.h"

extern char** environ;

namespace {

constexpr uint16_t kWidth = 400;             // the dialog's
constexpr unsigned char kBackground = 0xf5;  // WhiteSmoke, in each of its three bytes
constexpr unsigned kPatience = 60;           // seconds
constexpr useconds_t kPause = 100;           // microseconds between two looks at a pixel

struct Freer {
  void operator()(void* p) const { free(p); }
};
template <class T>
using Reply = std::unique_ptr<T, Freer>;

// Waits until the dialog is mapped.
xcb_window_t wait_for_window(xcb_connection_t* display) {
  while (const Reply<xcb_generic_event_t> event{xcb_wait_for_event(display)}) {
    if ((event->response_type & 0x7f) != XCB_MAP_NOTIFY) continue;
    const auto* const map = reinterpret_cast<xcb_map_notify_event_t*>(event.get());
    const Reply<xcb_get_geometry_reply_t> geometry{
        xcb_get_geometry_reply(display, xcb_get_geometry(display, map->window), nullptr)};
    if (geometry && geometry->width == kWidth) return map->window;
  }
  return XCB_NONE;
}

// Whether the corner of `window` has the dialog's background.
bool is_painted(xcb_connection_t* display, xcb_window_t window) {
  const Reply<xcb_get_image_reply_t> image{xcb_get_image_reply(
      display, xcb_get_image(display, XCB_IMAGE_FORMAT_Z_PIXMAP, window, 2, 2, 1, 1, ~0U),
      nullptr)};
  if (!image) return false;
  const unsigned char* const pixel = xcb_get_image_data(image.get());
  return pixel[0] == kBackground && pixel[1] == kBackground && pixel[2] == kBackground;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) return 2;
  xcb_connection_t* const display = xcb_connect(nullptr, nullptr);
  if (xcb_connection_has_error(display)) return 1;
  const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(display)).data->root;
  const uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
  (void)xcb_change_window_attributes(display, root, XCB_CW_EVENT_MASK, &events);
  (void)xcb_get_input_focus_reply(display, xcb_get_input_focus(display), nullptr);  // a barrier

  (void)alarm(kPatience);  // the signal ends this program; there is no earlier alarm
  const bench::Stopwatch watch;
  pid_t program = 0;
  if (posix_spawn(&program, argv[1], nullptr, nullptr, argv + 1, environ) != 0) return 1;
  const xcb_window_t window = wait_for_window(display);
  if (window == XCB_NONE) return 1;
  while (!is_painted(display, window)) (void)usleep(kPause);
  const double time = watch.nanoseconds();

  int status = 0;
  (void)waitpid(program, &status, 0);
  xcb_disconnect(display);
  bench::print_result(time);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? 0 : 1;
}
