# And a field that nothing bears.
# exit: 2
@1000 expect SlideIndexes 1
