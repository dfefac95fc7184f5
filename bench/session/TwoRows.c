// The floor of a key: prints a frame, then answers each key with the same bytes.
// Usage: bench-two-rows FRAME ANSWER, where both are names of files.
#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

static char frame[65536];
static char answer[65536];

static ssize_t readFile(const char *path, char *buffer, size_t size)
{
    const int file = open(path, O_RDONLY | O_CLOEXEC);
    const ssize_t length = read(file, buffer, size);
    close(file);
    return length;
}

int main(int argc, char **argv)
{
    if (argc != 3)
        return 2;
    const ssize_t frameLength = readFile(argv[1], frame, sizeof frame);
    const ssize_t answerLength = readFile(argv[2], answer, sizeof answer);
    struct termios attributes;
    tcgetattr(0, &attributes);
    attributes.c_lflag &= ~(tcflag_t)(ICANON | ECHO);
    tcsetattr(0, TCSANOW, &attributes);
    if (frameLength < 0 || answerLength < 0 || write(1, frame, (size_t)frameLength) < 0)
        return 1;
    char key[16];
    while (read(0, key, sizeof key) > 0) {
        if (write(1, answer, (size_t)answerLength) < 0)
            return 1;
    }
    return 0;
}
