// Something to start: ends at once.

int main()
{
    return 0;
}
