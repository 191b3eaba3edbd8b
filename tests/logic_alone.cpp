// Linked with every object of the logic and with no toolkit: that it links is the test.
int main() {
    return 0;
}
