' A scenario of a report: the statements are those of its log, the host's objects are used in its order.
Replay
Report.Finish
