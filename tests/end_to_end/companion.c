/* What the tests start: it leaves the file "companion.ran" in the folder where it lies. */

#include <windows.h>

#include <stdio.h>
#include <string.h>

/* No success, so that it shows who looks at it. */
#define EXIT_CODE 3

int main(void)
{
    char path[1024];
    const DWORD length = GetModuleFileNameA(NULL, path, 1000);
    char* const slash = length > 0 && length < 1000 ? strrchr(path, '\\') : NULL;
    FILE* file;
    if (slash == NULL)
    {
        return 1;
    }
    strcpy(slash + 1, "companion.ran");
    file = fopen(path, "w");
    if (file == NULL)
    {
        return 1;
    }
    fputs("done", file);
    fclose(file);
    return EXIT_CODE;
}
