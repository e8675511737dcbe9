/* Asks an X window to close, as a window manager's close button does: a WM_DELETE_WINDOW message.
 * The resident benchmark runs without a window manager, and xdotool's windowclose destroys the
 * window under the application instead of asking it.
 *
 *   close-window WINDOW-ID */
#include <X11/Xlib.h>
#include <stdio.h>
#include <stdlib.h>

int main(int argc, char **argv)
{
    if (argc != 2) {
        fprintf(stderr, "usage: close-window WINDOW-ID\n");
        return 2;
    }
    Display *display = XOpenDisplay(NULL);
    if (!display) {
        fprintf(stderr, "close-window: cannot open the display\n");
        return 1;
    }
    XEvent event = {0};
    event.xclient.type = ClientMessage;
    event.xclient.window = (Window)strtoul(argv[1], NULL, 0);
    event.xclient.message_type = XInternAtom(display, "WM_PROTOCOLS", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = (long)XInternAtom(display, "WM_DELETE_WINDOW", False);
    event.xclient.data.l[1] = CurrentTime;
    const Status sent = XSendEvent(display, event.xclient.window, False, NoEventMask, &event);
    XCloseDisplay(display);
    return sent ? 0 : 1;
}
