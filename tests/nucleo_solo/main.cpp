// A program of the core and the standard library. That it links is the test.
int main() {}
