' Every public class is created by name, and its properties keep what is put into them.

Dim Texts
Texts = Array("", "plain", "资金占用额", "it's ""quoted""", "a" & vbCrLf & "b", String(20000, "x") & "末")

Sub ExpectCreated(name)
    Dim made
    Report.Step "creating " & name
    Set made = CreateObject("Kavelin." & name)
    Expect made Is Nothing, False, name
    Set made = CreateObject("KAVELIN." & UCase(name))
    Expect made Is Nothing, False, name & " in capitals"
    Set made = CreateObject("Kavelin." & name & ".1")
    Expect made Is Nothing, False, name & " with its version"
End Sub

Sub ExpectTheFour(name)
    Dim library, value, held
    Report.Step "the four properties of " & name
    Set library = CreateObject("Kavelin." & name)
    Expect library.ReportTitle, "", "title of a new object"
    Expect library.mConnectionString, "", "connection string of a new object"
    ExpectObject library.ObjLogin, Nothing, "login of a new object"
    ExpectObject library.ObjreportManager, Nothing, "manager of a new object"
    For Each value In Texts
        library.ReportTitle = value
        Expect library.ReportTitle, value, "title"
        library.mConnectionString = value
        Expect library.mConnectionString, value, "connection string"
    Next
    library.ReportTitle = 5
    Expect library.ReportTitle, "5", "a number as a title"
    Set held = New ScriptedLogin
    Set library.ObjLogin = held
    ExpectObject library.ObjLogin, held, "login"
    Set library.ObjreportManager = Host.Manager
    ExpectObject library.ObjreportManager, Host.Manager, "manager"
    ExpectObject library.ObjLogin, held, "login"
    Set library.ObjLogin = Nothing
    ExpectObject library.ObjLogin, Nothing, "login taken away"
    ' An object of the library's own comes back as it is, too.
    Set held = CreateObject("Kavelin.clsSFCSumCon")
    held.strWhCode = "01"
    Set library.ObjreportManager = held
    ExpectObject library.ObjreportManager, held, "an object of the library"
    Expect library.ObjreportManager.strWhCode, "01", "its property"
End Sub

Sub ExpectTempTablename(name)
    Dim library, value
    Report.Step "TempTablename of " & name
    Set library = CreateObject("Kavelin." & name)
    For Each value In Texts
        library.TempTablename = value
        Expect library.TempTablename, value, "table"
    Next
End Sub

Sub ExpectTmpTable(name)
    Dim library, value
    Report.Step "sarn_tmpTable of " & name
    Set library = CreateObject("Kavelin." & name)
    Expect library.sarn_tmpTable, "", "table of a new object"
    For Each value In Texts
        library.sarn_tmpTable = value
        Expect library.sarn_tmpTable, value, "table"
    Next
End Sub

Sub ExpectOfTheEngine
    Dim library, value
    Report.Step "properties of clsIASFCReport"
    Set library = CreateObject("Kavelin.clsIASFCReport")
    For Each value In Texts
        library.tmpTable = value
        Expect library.tmpTable, value, "tmpTable"
        library.sTable = value & "2"
        Expect library.sTable, value & "2", "sTable"
    Next
End Sub

Sub ExpectOfTheConditions
    Dim library, value, i
    Report.Step "texts of clsSFCSumCon"
    Set library = CreateObject("Kavelin.clsSFCSumCon")
    For Each value In Texts
        library.strInvCCode = value
        Expect library.strInvCCode, value, "strInvCCode"
        library.strInvCName = value
        Expect library.strInvCName, value, "strInvCName"
        library.strWhCode = value
        Expect library.strWhCode, value, "strWhCode"
        library.strWhStyle = value
        Expect library.strWhStyle, value, "strWhStyle"
        library.strReportType = value
        Expect library.strReportType, value, "strReportType"
        library.strDefineSub = value
        Expect library.strDefineSub, value, "strDefineSub"
        library.strDefineRec = value
        Expect library.strDefineRec, value, "strDefineRec"
        library.strDefineSal = value
        Expect library.strDefineSal, value, "strDefineSal"
        library.itemCls = value
        Expect library.itemCls, value, "itemCls"
        library.itemCode = value
        Expect library.itemCode, value, "itemCode"
        library.cAssComUnitNum = 2
        library.strCompareQuantity = value
        Expect library.strCompareQuantity, value, "strCompareQuantity"
    Next

    Report.Step "numbers and flags of clsSFCSumCon"
    library.intInvGrade = 3
    Expect library.intInvGrade, 3, "intInvGrade"
    library.intRdGrade = -1
    Expect library.intRdGrade, -1, "intRdGrade"
    library.bytDirect = 255
    Expect library.bytDirect, 255, "bytDirect"
    library.bytFree = "1"
    Expect library.bytFree, 1, "bytFree"
    library.IntThanZero = 1
    Expect library.IntThanZero, 1, "IntThanZero"
    library.IntThanZeroA = 2.5
    Expect library.IntThanZeroA, 2, "IntThanZeroA, rounded to the even number"
    library.BlnIfOcc = 1
    Expect library.BlnIfOcc, 1, "BlnIfOcc"
    library.blnWhSum = True
    Expect library.blnWhSum, True, "blnWhSum"
    library.BlnUnAccounted = True
    Expect library.BlnUnAccounted, True, "BlnUnAccounted"
    library.BlnAccounted = False
    Expect library.BlnAccounted, False, "BlnAccounted"
    Expect library.cAssComUnitNum, 2, "cAssComUnitNum"

    Report.Step "indexed properties of clsSFCSumCon"
    For i = 0 To 1
        library.strInvName(i) = "名称" & i
        library.strInvCode(i) = "A" & i
        library.varDate(i) = DateSerial(2008, 7, 1 + i)
    Next
    For i = 0 To 1
        Expect library.strInvName(i), "名称" & i, "strInvName"
        Expect library.strInvCode(i), "A" & i, "strInvCode"
        Expect library.varDate(i), DateSerial(2008, 7, 1 + i), "varDate"
    Next
End Sub

Dim name
For Each name In Split("clsFCSumInfo|clsAreaStockReport|clsSFCSumCon|clsSfcSumInfo|clsIASFCReport|clsLastRep|" & _
    "ClsWtInfo|clsCinTurnRep|clsFilterControl|ClsABC|clsProPortion|ClsBusiness|clsStaCostacc|clsIaAnalysis|" & _
    "ClsFCInventory|ClsOutDetailInfo", "|")
    ExpectCreated name
Next
For Each name In Split("clsFCSumInfo|clsSfcSumInfo|clsLastRep|clsCinTurnRep|ClsABC|clsProPortion", "|")
    ExpectTheFour name
Next
For Each name In Split("clsLastRep|clsCinTurnRep|ClsABC|clsProPortion", "|")
    ExpectTempTablename name
Next
For Each name In Split("clsSfcSumInfo|ClsWtInfo|clsStaCostacc|clsIaAnalysis|ClsFCInventory|ClsOutDetailInfo", "|")
    ExpectTmpTable name
Next
ExpectOfTheEngine
ExpectOfTheConditions
Report.Finish
