// For a program that only compiles the headers of the tests.
int main() {}
