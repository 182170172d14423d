/*
 * A module of weston: a touch screen that obeys lines from the pipe at $WESTON_TOUCH_PIPE.
 *
 *   down <x> <y>     in pixels of the layout, with the one finger that there is
 *   move <x> <y>
 *   up
 */
#include <fcntl.h>
#include <libweston/libweston.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>
#include <unistd.h>
#include <weston.h>

/* Exported for backends; their header is not installed. */
void notify_touch_frame(struct weston_touch_device *device);
void notify_touch_normalized(struct weston_touch_device *device, const struct timespec *time,
                             int touch_id, double x, double y,
                             const struct weston_point2d_device_normalized *normalized, int type);
void weston_seat_init(struct weston_seat *seat, struct weston_compositor *compositor,
                      const char *name);
int weston_seat_init_touch(struct weston_seat *seat);
struct weston_touch_device *weston_touch_create_touch_device(
    struct weston_touch *touch, const char *path, void *data,
    const struct weston_touch_device_ops *operations);

static struct weston_seat seat;
static struct weston_touch_device *screen;

static void touch(int type, double x, double y)
{
    struct timespec now;
    clock_gettime(CLOCK_MONOTONIC, &now);
    notify_touch_normalized(screen, &now, 0, x, y, NULL, type);
    notify_touch_frame(screen);
}

static void obey(const char *line)
{
    double x = 0, y = 0;
    if (sscanf(line, "down %lf %lf", &x, &y) == 2)
        touch(WL_TOUCH_DOWN, x, y);
    else if (sscanf(line, "move %lf %lf", &x, &y) == 2)
        touch(WL_TOUCH_MOTION, x, y);
    else if (strcmp(line, "up") == 0)
        touch(WL_TOUCH_UP, 0, 0);
    else
        weston_log("touch: cannot obey \"%s\"\n", line);
}

/* Each line is written at once and is shorter than a pipe's buffer: none arrives in parts. */
static int read_lines(int pipe, uint32_t mask, void *data)
{
    char lines[4096];
    ssize_t length = read(pipe, lines, sizeof lines - 1);
    char *rest = NULL;

    (void)mask;
    (void)data;
    lines[length > 0 ? length : 0] = '\0';
    for (char *line = strtok_r(lines, "\n", &rest); line; line = strtok_r(NULL, "\n", &rest))
        obey(line);
    return 0;
}

int wet_module_init(struct weston_compositor *compositor, int *argc, char *argv[])
{
    const char *path = getenv("WESTON_TOUCH_PIPE");
    /* Open for writing too, so that it does not end with the first writer. */
    int pipe = path ? open(path, O_RDWR | O_NONBLOCK | O_CLOEXEC) : -1;

    (void)argc;
    (void)argv;
    if (pipe < 0)
        return -1;
    weston_seat_init(&seat, compositor, "touch");
    if (weston_seat_init_touch(&seat) < 0)
        return -1;
    screen = weston_touch_create_touch_device(seat.touch_state, "touch", NULL, NULL);
    wl_event_loop_add_fd(wl_display_get_event_loop(compositor->wl_display), pipe,
                         WL_EVENT_READABLE, read_lines, NULL);
    return screen ? 0 : -1;
}
