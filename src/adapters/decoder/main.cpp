// The decoder's process: started by the program, answers one request after the other.
int main() {
    return 2;
}
