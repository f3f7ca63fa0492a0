// Loaded into every program of a device that has a model name: uname reports that name as the machine.

#include <errno.h>
#include <fcntl.h>
#include <string.h>
#include <sys/syscall.h>
#include <sys/utsname.h>
#include <unistd.h>

static const char modelFile[] = "/etc/device-model";

static int isNameCharacter(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z')
        || (character >= '0' && character <= '9') || (character != '\0' && strchr(",._-", character) != NULL);
}

// The length of the name at the start of the text, up to a line end; 0 if it is not a valid name.
static size_t nameLength(const char *text)
{
    size_t length = 0;
    while (isNameCharacter(text[length]))
        ++length;
    return text[length] == '\0' || text[length] == '\n' ? length : 0;
}

// Reads the model's name; leaves an empty text if the device has none.
static void readModel(char *text, size_t size)
{
    const int file = open(modelFile, O_RDONLY | O_CLOEXEC);
    const ssize_t count = file < 0 ? 0 : read(file, text, size - 1);
    if (file >= 0)
        close(file);
    text[count > 0 ? count : 0] = '\0';
    text[nameLength(text)] = '\0';
}

// Replaces the system's function. Changes the machine only, and nothing without a usable name.
int uname(struct utsname *name)
{
    if (syscall(SYS_uname, name) != 0)
        return -1;
    const int savedError = errno;
    // One byte longer than a machine's name may be, to detect one that is too long.
    char model[sizeof name->machine + 1];
    readModel(model, sizeof model);
    if (model[0] != '\0' && strlen(model) < sizeof name->machine)
        strcpy(name->machine, model);
    errno = savedError;
    return 0;
}
