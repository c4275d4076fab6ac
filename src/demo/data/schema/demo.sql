-- What made the account. Of the tables of an account only a demo's has rows here.
create table Demo_Profile (
    -- profile, seed, lines, language
    cName  nvarchar(30)  not null,
    cValue nvarchar(255) not null,
    primary key (cName)
)

-- Rights of users: the codes that a user may see. A user without a row of a kind sees all of that kind.
create table Demo_UserRight (
    -- operator of the login
    cUser nvarchar(60) not null,
    -- Warehouse, Department, Inventory or User
    cKind nvarchar(20) not null,
    -- code; of an item its iid
    cCode nvarchar(60) not null,
    primary key (cUser, cKind, cCode)
)
