' The ABC analysis lets every error of a statement through.
' scenario: abc/usual
ProvideAll
ScenarioOfRuns = "scenario.txt"
ExpectFailuresOfStatements "ClsABC", 0
Report.Finish
