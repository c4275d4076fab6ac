' Ends at an error that nobody catches: the runner must notice.
Expect 1, 1, "a check"
Report.Step "an error"
Err.Raise vbObjectError + 1, "script", "nobody catches this"
Report.Finish
