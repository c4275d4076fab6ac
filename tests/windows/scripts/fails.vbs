' A check that fails: the runner must notice.
Expect 1, 2, "a wrong number"
Report.Finish
