// Loaded before the C library into a converter under test, this takes the place
// of the flush of a whole file system and fails as a disk does whose write-back
// failed, so that the test sees what a user would.

#include <cerrno>

extern "C" int syncfs(int /*fd*/)
{
    errno = EIO;
    return -1;
}
