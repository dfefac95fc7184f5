// The floor of a process: starts and ends.
int main(void)
{
    return 0;
}
