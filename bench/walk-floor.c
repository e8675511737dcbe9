/* The floor for a size walk: the same system calls the scanner makes (one listing per folder,
 * one fstatat per entry, directory descriptors, no links followed) and nothing else. Prints the
 * sum of the allocated sizes of regular files, so totals can be compared. */
#define _GNU_SOURCE
#include <dirent.h>
#include <fcntl.h>
#include <stdio.h>
#include <string.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

static long long walk(int folder)
{
    long long total = 0;
    DIR *listing = fdopendir(folder);
    if (!listing) {
        close(folder);
        return 0;
    }
    struct dirent *entry;
    while ((entry = readdir(listing)) != NULL) {
        const char *name = entry->d_name;
        if (name[0] == '.' && (name[1] == 0 || (name[1] == '.' && name[2] == 0)))
            continue;
        struct stat status;
        if (fstatat(dirfd(listing), name, &status, AT_SYMLINK_NOFOLLOW) != 0)
            continue;
        if (S_ISREG(status.st_mode)) {
            total += (long long)status.st_blocks * 512;
        } else if (S_ISDIR(status.st_mode)) {
            int child = openat(dirfd(listing), name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
            if (child >= 0)
                total += walk(child);
        }
    }
    closedir(listing);
    return total;
}

int main(int argc, char **argv)
{
    if (argc != 2) {
        fprintf(stderr, "usage: walk-floor PATH\n");
        return 2;
    }
    /* One descriptor per level: a tree thousands of levels deep needs more than the usual 1,024. */
    struct rlimit limit;
    if (getrlimit(RLIMIT_NOFILE, &limit) == 0 && limit.rlim_cur < limit.rlim_max) {
        limit.rlim_cur = limit.rlim_max;
        setrlimit(RLIMIT_NOFILE, &limit);
    }
    int root = open(argv[1], O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (root < 0) {
        perror(argv[1]);
        return 1;
    }
    printf("%lld\n", walk(root));
    return 0;
}
