[playlist]
File1=a.avi
Title1=A
Length1=5
NumberOfEntries=1
