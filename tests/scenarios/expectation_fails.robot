# One expectation that does not hold makes the status 1, and the script goes on.
# exit: 1
expect SlideIndex 7
expect SlideIndex 0

expect-trace expect name=SlideIndex value=0 expected="7" ok=false
expect-trace expect name=SlideIndex value=0 expected="0" ok=true
