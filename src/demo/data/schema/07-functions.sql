-- The language in which the database shows enum texts. On a server the account's administrator sets it here;
-- an embedded account takes this as the declaration only and answers with the language of the connection.
create function dbo.UDF_GetLocaleID() returns nvarchar(10) as begin return N'zh-CN' end
