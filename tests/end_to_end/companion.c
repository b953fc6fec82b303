/* What the tests start. Called without arguments, as CreateProcRunExe calls it, it leaves the file "companion.ran" in
   the folder where it lies; "--leave FILE" leaves that file. */

#include <windows.h>

#include <stdio.h>
#include <string.h>

/* No success, so that it shows who looks at it. */
#define EXIT_CODE 3

static int Leave(const char* path)
{
    FILE* const file = fopen(path, "w");
    if (file == NULL)
    {
        return 1;
    }
    fputs("done", file);
    fclose(file);
    return EXIT_CODE;
}

static int LeaveBesideMe(void)
{
    char path[1024];
    const DWORD length = GetModuleFileNameA(NULL, path, 1000);
    char* const slash = length > 0 && length < 1000 ? strrchr(path, '\\') : NULL;
    if (slash == NULL)
    {
        return 1;
    }
    strcpy(slash + 1, "companion.ran");
    return Leave(path);
}

int main(int argc, char** argv)
{
    if (argc == 3 && strcmp(argv[1], "--leave") == 0)
    {
        return Leave(argv[2]);
    }
    return LeaveBesideMe();
}
