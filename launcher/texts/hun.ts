<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu_HU" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Üdvözli a [ProductName] telepítővarázslója</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>A [ProductName] indítása most</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Megosztott mappák</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Minden fájl naprakész.</translation>
    </message>
    <message>
        <source>Processing...</source>
        <translation>Feldolgozás…</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Kilépés</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>A telepítővarázsló készen áll a telepítés megkezdésére.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Fájlnév</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Kapcsolódási mód</translation>
    </message>
    <message>
        <source>The local database is damaged. Disconnect from the server, then reconnect to rebuild the database. Details are in ~/.Quillmere/log.</source>
        <translation>A helyi adatbázis sérült. Az adatbázis újraépítéséhez bontsa a kapcsolatot a kiszolgálóval, majd kapcsolódjon újra. A részletek itt találhatók: ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>&amp;Close the applications and restart them after setup</source>
        <translation>Az alkalmazások &amp;bezárása, majd újraindításuk a módosítások után</translation>
    </message>
    <message>
        <source>The folder is a mount point. Choose a folder that is not a mount point.</source>
        <translation>A mappa csatolási pont. Válasszon olyan mappát, amely nem csatolási pont.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Készen áll a [ProductName] eltávolítására</translation>
    </message>
    <message>
        <source>The server has been replaced. Click here to reconnect.</source>
        <translation>A kiszolgálót lecserélték. Kattintson ide az újrakapcsolódáshoz.</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>Jelenleg %1 fájl szinkronizálása zajlik.</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change, repair, or remove [ProductName]. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>A telepítővarázslóval módosíthatja, javíthatja vagy eltávolíthatja a [ProductName] programot. A folytatáshoz kattintson a Következő, a telepítővarázslóból való kilépéshez a Mégse gombra.</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <translation>Kizárási lista</translation>
    </message>
    <message>
        <source>Delete this share link?\nPeople who have the link will no longer be able to open the file.</source>
        <translation>Törli ezt a megosztási hivatkozást?\nA hivatkozás birtokosai többé nem fogják tudni megnyitni a fájlt.</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server.</source>
        <translation>Ezen a számítógépen a Quillmere túl régi, ezért nem tud együttműködni a kiszolgálóval.</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>[ProductName] telepítője</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Sikertelen bejelentkezés</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Verzió</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Kapcsolat tesztelése…</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted: it may have expired, belong to another server, or come from an unknown issuer. Others may be able to read the data you send. Continue?</source>
        <translation>A kiszolgáló tanúsítványa nem megbízható: lehet, hogy lejárt, másik kiszolgálóhoz tartozik, vagy ismeretlen kibocsátótól származik. Mások esetleg elolvashatják az elküldött adatokat. Folytatja?</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Új megosztott mappa</translation>
    </message>
    <message>
        <source>About Quillmere</source>
        <translation>A Quillmere névjegye</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done.</source>
        <translation>Ellenőrizze az alábbi beállításokat, majd kattintson a Kész gombra.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Nyomtatás</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the removal.</source>
        <translation>A telepítővarázsló készen áll az eltávolítás megkezdésére.</translation>
    </message>
    <message>
        <source>This computer is already connected to this server. Edit the existing connection, or enter another server.</source>
        <translation>Ez a számítógép már kapcsolódik ehhez a kiszolgálóhoz. Szerkessze a meglévő kapcsolatot, vagy adjon meg másik kiszolgálót.</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Letöltési előzmények</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Check the network connection, then try again.</source>
        <translation>Megszakadt a kapcsolat a kiszolgálóval. Ellenőrizze a hálózati kapcsolatot, majd próbálkozzon újra.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified.</source>
        <translation>Nem sikerült ellenőrizni a kiszolgáló tanúsítványát.</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Fekete-fehér ikon használata a rendszertálcán</translation>
    </message>
    <message>
        <source>The files in this folder will be synced with the server.</source>
        <translation>A program az ebben a mappában lévő fájlokat szinkronizálja a kiszolgálóval.</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <translation>A proxykiszolgáló bejelentkezést igényel</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Szinkronizálási feladatok</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Kizárt fájlok</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Nincs jogosultság</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer. Ask the server administrator to upgrade it.</source>
        <translation>A kiszolgálón a Quillmere túl régi, ezért nem tud együttműködni ezzel a számítógéppel. Kérje meg a kiszolgáló rendszergazdáját, hogy frissítse a programot.</translation>
    </message>
    <message>
        <source>You can run setup again at any time. Click Finish to exit the Setup Wizard.</source>
        <translation>A telepítőt bármikor újra futtathatja. A telepítővarázslóból való kilépéshez kattintson a Befejezés gombra.</translation>
    </message>
    <message>
        <source>The connection to the server is unstable.</source>
        <translation>A kapcsolat a kiszolgálóval nem stabil.</translation>
    </message>
    <message>
        <source>A newer version of Quillmere is already installed. To install this version, remove the newer one first.</source>
        <translation>A Quillmere újabb verziója már telepítve van. Ennek a verziónak a telepítéséhez először távolítsa el az újabbat.</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>A [ProductName] telepítésének javításához kattintson a Javítás gombra. A választott beállítások áttekintéséhez kattintson a Vissza, a telepítővarázslóból való kilépéshez a Mégse gombra.</translation>
    </message>
    <message>
        <source>Some settings have not been saved. Save them?</source>
        <translation>Néhány beállítás nincs mentve. Menti őket?</translation>
    </message>
    <message>
        <source>Icon overlays on files</source>
        <translation>Ikonátfedések a fájlokon</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Művelet</translation>
    </message>
    <message>
        <source>This folder is already used by another sync program. Choose another folder to avoid conflicts.</source>
        <translation>Ezt a mappát már egy másik szinkronizálóprogram használja. Az ütközések elkerülése érdekében válasszon másik mappát.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Törlés</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>Nem kompatibilis verzió</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Szinkronizálási mappa módosítása</translation>
    </message>
    <message>
        <source>Enter a complete file name without a folder path, for example thumbs.db.</source>
        <translation>Adjon meg egy teljes fájlnevet a mappa elérési útja nélkül, például: thumbs.db.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Setup stopped because of an error. The changes it had made were undone.</source>
        <translation>[DlgTitleFont]A telepítő egy hiba miatt leállt. Az elvégzett módosításokat visszavonta.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Készenlét</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>A telepítővarázsló telepíti a [ProductName] programot a számítógépre. A folytatáshoz kattintson a Következő, a telepítővarázslóból való kilépéshez a Mégse gombra.</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Szinkronizálási probléma</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>Olvassa el figyelmesen az alábbi licencszerződést.</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>A mappa nem üres</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Név</translation>
    </message>
    <message>
        <source>Use an encrypted connection (TLS)</source>
        <translation>Titkosított kapcsolat (TLS) használata</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Néhány frissítendő fájl használatban van.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Írásvédett</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Súgó</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Igen</translation>
    </message>
    <message>
        <source>A new version of Quillmere is available. Click here to upgrade.</source>
        <translation>Elérhető a Quillmere új verziója. Kattintson ide a frissítéshez.</translation>
    </message>
    <message>
        <source>The download of %1 was canceled.</source>
        <translation>%1 letöltése megszakítva.</translation>
    </message>
    <message>
        <source>The value you entered is not valid. Check it, then try again.</source>
        <translation>A megadott érték érvénytelen. Ellenőrizze, majd próbálkozzon újra.</translation>
    </message>
    <message>
        <source>This file has no earlier versions yet. Change the file and let it sync to create one.</source>
        <translation>Ennek a fájlnak még nincsenek korábbi verziói. Verzió létrehozásához módosítsa a fájlt, és várja meg a szinkronizálását.</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Kapcsolat bontása</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Vissza</translation>
    </message>
    <message>
        <source>Quillmere is initializing...</source>
        <translation>A Quillmere inicializálása…</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Indítás most</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Szinkronizálás szüneteltetése</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Egyesítési mód</translation>
    </message>
    <message>
        <source>Quillmere is ready.</source>
        <translation>A Quillmere készen áll.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Időpont</translation>
    </message>
    <message>
        <source>This version could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>Nem sikerült letölteni ezt a verziót. Ellenőrizze a kapcsolatot a kiszolgálóval, majd próbálkozzon újra.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Beállítások alkalmazása…</translation>
    </message>
    <message>
        <source>Files excluded from syncing</source>
        <translation>A szinkronizálásból kizárt fájlok</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Létrehozva</translation>
    </message>
    <message>
        <source>The Quillmere service is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>A Quillmere szolgáltatás ki van kapcsolva a kiszolgálón. Kérje meg a kiszolgáló rendszergazdáját, hogy kapcsolja be.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Choose shared folders to sync</source>
        <translation>Válassza ki a szinkronizálandó megosztott mappákat</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]&amp;Eltávolítás</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Feltöltés…</translation>
    </message>
    <message>
        <source>To use selective sync, ask the server administrator to upgrade Quillmere on the server.</source>
        <translation>A szelektív szinkronizálás használatához kérje meg a kiszolgáló rendszergazdáját, hogy frissítse a Quillmere programot a kiszolgálón.</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Egyetlen beállítás sem módosult.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]Használatban lévő fájlok</translation>
    </message>
    <message>
        <source>Repairs errors in the installation of [ProductName] by restoring missing or damaged files and shortcuts.</source>
        <translation>Kijavítja a [ProductName] telepítésének hibáit a hiányzó vagy sérült fájlok és parancsikonok helyreállításával.</translation>
    </message>
    <message>
        <source>Excluded file extensions</source>
        <translation>Kizárt fájlkiterjesztések</translation>
    </message>
    <message>
        <source>Syncing is paused.</source>
        <translation>A szinkronizálás szünetel.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome back to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Ismét üdvözli a [ProductName] telepítővarázslója</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Jelszó</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is not mounted. Mount the drive, then resume syncing. See Sync tasks for the folder.</source>
        <translation>A szinkronizálási mappát tartalmazó meghajtó nincs csatolva. Csatolja a meghajtót, majd folytassa a szinkronizálást. A mappát a Szinkronizálási feladatok oldalon találja.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Szerkesztés</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full.</source>
        <translation>A szinkronizálási mappát tartalmazó meghajtó megtelt.</translation>
    </message>
    <message>
        <source>Proxy server address</source>
        <translation>Proxykiszolgáló címe</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>Új&amp;ra</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Mellőzés</translation>
    </message>
    <message>
        <source>A folder with this name already exists on this computer. Merge its files with those on the server?</source>
        <translation>Ezen a számítógépen már létezik ilyen nevű mappa. Egyesíti a fájljait a kiszolgálón lévőkkel?</translation>
    </message>
    <message>
        <source>Quillmere keeps your files in sync between your computers and your server.</source>
        <translation>A Quillmere szinkronban tartja a fájljait a számítógépei és a kiszolgálója között.</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>A telepített összetevők módosítása</translation>
    </message>
    <message>
        <source>Welcome to Quillmere</source>
        <translation>Üdvözli a Quillmere</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Javítás</translation>
    </message>
    <message>
        <source>Upgrading Quillmere...</source>
        <translation>A Quillmere frissítése…</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Szinkronizálási mód</translation>
    </message>
    <message>
        <source>Enter a domain name, an IP address, or a server ID.</source>
        <translation>Adjon meg egy tartománynevet, IP-címet vagy kiszolgálóazonosítót.</translation>
    </message>
    <message>
        <source>A share link could not be created for this file. Check the connection to the server, then try again.</source>
        <translation>Nem sikerült megosztási hivatkozást létrehozni ehhez a fájlhoz. Ellenőrizze a kapcsolatot a kiszolgálóval, majd próbálkozzon újra.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Azonosító</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Alkalmaz</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Kész</translation>
    </message>
    <message>
        <source>Files being synced: %1</source>
        <translation>Szinkronizálás alatt álló fájlok: %1</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Újrakapcsolódás</translation>
    </message>
    <message>
        <source>Your files, in sync everywhere</source>
        <translation>Fájljai mindenhol szinkronban</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Cél</translation>
    </message>
    <message>
        <source>The Setup Wizard is making the changes you chose.</source>
        <translation>A telepítővarázsló végrehajtja a kiválasztott módosításokat.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Rendszer alapértelmezése</translation>
    </message>
    <message>
        <source>The folders and files you deselected will be removed from this computer. They will be kept on the server.</source>
        <translation>A program eltávolítja erről a számítógépről azokat a mappákat és fájlokat, amelyek jelölését törölte. A kiszolgálón megmaradnak.</translation>
    </message>
    <message>
        <source>Setup made all the changes you chose. Click Finish to exit the Setup Wizard.</source>
        <translation>A telepítő végrehajtotta az összes kiválasztott módosítást. A telepítővarázslóból való kilépéshez kattintson a Befejezés gombra.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>A [ProductName] számítógépről való eltávolításához kattintson az Eltávolítás gombra. A választott beállítások áttekintéséhez kattintson a Vissza, a telepítővarázslóból való kilépéshez a Mégse gombra.</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>Nincs több hely</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Kapcsolat bontva</translation>
    </message>
    <message>
        <source>You have used all of your space on the server.</source>
        <translation>Felhasználta az összes tárhelyét a kiszolgálón.</translation>
    </message>
    <message>
        <source>Disconnect from the server?\nYour files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>Bontja a kapcsolatot a kiszolgálóval?\nA fájljai megmaradnak ezen a számítógépen és a kiszolgálón, de a szinkronizálásuk megszűnik.</translation>
    </message>
    <message>
        <source>The relay service has a problem. Try again later, or connect to the server by its IP address.</source>
        <translation>Hiba történt a közvetítő szolgáltatásban. Próbálkozzon újra később, vagy kapcsolódjon a kiszolgálóhoz az IP-címe használatával.</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>Kiszolgálóazonosító</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Kizárt fájlnevek</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Kiszolgáló címe</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Folytatás</translation>
    </message>
    <message>
        <source>Turned on</source>
        <translation>Bekapcsolva</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full. Free some space on it to continue syncing.</source>
        <translation>A szinkronizálási mappát tartalmazó meghajtó megtelt. A szinkronizálás folytatásához szabadítson fel rajta helyet.</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Szinkronizálandó mappák</translation>
    </message>
    <message>
        <source>Choose sync folder</source>
        <translation>Válasszon szinkronizálási mappát</translation>
    </message>
    <message>
        <source>Connection settings</source>
        <translation>Kapcsolat beállításai</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Szelektív szinkronizálás</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Számítógép</translation>
    </message>
    <message>
        <source>You have used all of your space on the server. Delete files you do not need, or ask the server administrator for more space.</source>
        <translation>Felhasználta az összes tárhelyét a kiszolgálón. Törölje a szükségtelen fájlokat, vagy kérjen több tárhelyet a kiszolgáló rendszergazdájától.</translation>
    </message>
    <message>
        <source>After you start [ProductName], you can find it in the system tray.</source>
        <translation>Az indítás után a [ProductName] a rendszertálcán található.</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open and restart the computer later</source>
        <translation>Az alkalmazások n&amp;yitva hagyása és a számítógép későbbi újraindítása</translation>
    </message>
    <message>
        <source>Use the following proxy server</source>
        <translation>A következő proxykiszolgáló használata</translation>
    </message>
    <message>
        <source>This file was changed on this computer and on the server. Both copies are in the same folder under different names. Compare them, then keep the one you need.</source>
        <translation>Ez a fájl ezen a számítógépen és a kiszolgálón is módosult. Mindkét példány ugyanabban a mappában van, eltérő néven. Hasonlítsa össze őket, majd tartsa meg azt, amelyikre szüksége van.</translation>
    </message>
    <message>
        <source>All your files on every computer, kept on your own server</source>
        <translation>Minden fájlja minden számítógépén, a saját kiszolgálóján tárolva</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Asztali értesítések megjelenítése</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Close them, then click Retry. To continue without closing them, click Ignore. To leave setup, click Exit.</source>
        <translation>A következő alkalmazások olyan fájlokat használnak, amelyeket a telepítőnek frissítenie kell. Zárja be az alkalmazásokat, majd kattintson az Újra gombra. Ha a bezárásuk nélkül szeretné folytatni, kattintson a Mellőzés gombra. A telepítőből való kilépéshez kattintson a Kilépés gombra.</translation>
    </message>
    <message>
        <source>The server cannot be reached. Check the network connection and the server address, then try again.</source>
        <translation>A kiszolgáló nem érhető el. Ellenőrizze a hálózati kapcsolatot és a kiszolgáló címét, majd próbálkozzon újra.</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Helyi szinkronizálási mappa</translation>
    </message>
    <message>
        <source>Files that match an entry in this list are not synced.</source>
        <translation>A program nem szinkronizálja azokat a fájlokat, amelyek megfelelnek a lista valamelyik bejegyzésének.</translation>
    </message>
    <message>
        <source>Edit connection...</source>
        <translation>Kapcsolat szerkesztése…</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Beállítások</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Choose whether setup should close them. If they stay open, you need to restart the computer to finish setup.</source>
        <translation>A következő alkalmazások olyan fájlokat használnak, amelyeket a telepítőnek frissítenie kell. Válassza ki, hogy a telepítő bezárja-e az alkalmazásokat. Ha nyitva maradnak, a módosítások befejezéséhez újra kell indítania a számítógépet.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair.</source>
        <translation>A telepítővarázsló készen áll a javítás megkezdésére.</translation>
    </message>
    <message>
        <source>Open Quillmere</source>
        <translation>A Quillmere megnyitása</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Az új nyelvi beállítások alkalmazásához indítsa újra a következő programot: %1.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Szüneteltetés</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>Ikonátfedések megjelenítése a kizárt fájlokon</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Betöltés…</translation>
    </message>
    <message>
        <source>The limit of synced shared folders is reached: %1. Stop syncing a shared folder before you add another.</source>
        <translation>Elérte a szinkronizálható megosztott mappák maximális számát: %1. Újabb mappa hozzáadása előtt szüntesse meg egy megosztott mappa szinkronizálását.</translation>
    </message>
    <message>
        <source>Remove this sync task?\nIts files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>Eltávolítja ezt a szinkronizálási feladatot?\nA fájljai megmaradnak ezen a számítógépen és a kiszolgálón, de a szinkronizálásuk megszűnik.</translation>
    </message>
    <message>
        <source>Starting Quillmere...</source>
        <translation>A Quillmere indítása…</translation>
    </message>
    <message>
        <source>Quillmere could not be upgraded. Your earlier version was kept. Restart the computer, then try again. Details are in ~/.Quillmere/log.</source>
        <translation>Nem sikerült frissíteni a Quillmere programot. A korábbi verzió megmaradt. Indítsa újra a számítógépet, majd próbálkozzon újra. A részletek itt találhatók: ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>A ponttal kezdődő nevek kizárása</translation>
    </message>
    <message>
        <source>The server has no free disk space. Ask the server administrator to free some space.</source>
        <translation>A kiszolgálón nincs szabad lemezterület. Kérje meg a kiszolgáló rendszergazdáját, hogy szabadítson fel helyet.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]License agreement</source>
        <translation>[DlgTitleFont]Licencszerződés</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>%1 letöltve.</translation>
    </message>
    <message>
        <source>The versions of this file could not be listed. Check the connection to the server, then try again.</source>
        <translation>Nem sikerült lekérni a fájl verzióinak listáját. Ellenőrizze a kapcsolatot a kiszolgálóval, majd próbálkozzon újra.</translation>
    </message>
    <message>
        <source>Connected to the server.</source>
        <translation>Létrejött a kapcsolat a kiszolgálóval.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup is complete</source>
        <translation>{\VerdanaBold13}A [ProductName] telepítője befejezte a műveletet</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Helyi hálózat</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Nincs proxykiszolgáló</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>A megosztott mappa nem található</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Következő</translation>
    </message>
    <message>
        <source>Parvenor Quillmere</source>
        <translation>Parvenor Quillmere</translation>
    </message>
    <message>
        <source>%1 could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>%1 letöltése nem sikerült. Ellenőrizze a kapcsolatot a kiszolgálóval, majd próbálkozzon újra.</translation>
    </message>
    <message>
        <source>Watching for file changes...</source>
        <translation>Fájlváltozások figyelése…</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Megosztott mappa</translation>
    </message>
    <message>
        <source>Quillmere settings</source>
        <translation>A Quillmere beállításai</translation>
    </message>
    <message>
        <source>The share link could not be deleted. Check the connection to the server, then try again.</source>
        <translation>Nem sikerült törölni a megosztási hivatkozást. Ellenőrizze a kapcsolatot a kiszolgálóval, majd próbálkozzon újra.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified: it may have expired, belong to another server, or come from an unknown issuer. Ask the server administrator to check the certificate.</source>
        <translation>Nem sikerült ellenőrizni a kiszolgáló tanúsítványát: lehet, hogy lejárt, másik kiszolgálóhoz tartozik, vagy ismeretlen kibocsátótól származik. Kérje meg a kiszolgáló rendszergazdáját, hogy ellenőrizze a tanúsítványt.</translation>
    </message>
    <message>
        <source>This is not the server that this computer was connected to. Check the server address, or reconnect.</source>
        <translation>Ez nem az a kiszolgáló, amelyhez ez a számítógép kapcsolódott. Ellenőrizze a kiszolgáló címét, vagy kapcsolódjon újra.</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>A [ProductName] nem tartalmaz külön módosítható összetevőket.</translation>
    </message>
    <message>
        <source>The address or port of the proxy server is missing. Enter both, then try again.</source>
        <translation>Hiányzik a proxykiszolgáló címe vagy portja. Adja meg mindkettőt, majd próbálkozzon újra.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>The user name is missing. Enter a user name.</source>
        <translation>Hiányzik a felhasználónév. Adjon meg egy felhasználónevet.</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Hivatkozás törlése</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Hiba</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>&amp;Elfogadom a licencszerződés feltételeit</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>Frissítve: %1</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Kapcsolatok kezelése</translation>
    </message>
    <message>
        <source>Connect to another server...</source>
        <translation>Kapcsolódás másik kiszolgálóhoz…</translation>
    </message>
    <message>
        <source>Show icon overlays</source>
        <translation>Ikonátfedések megjelenítése</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Making changes to [ProductName]</source>
        <translation>[DlgTitleFont]A [ProductName] módosításainak végrehajtása</translation>
    </message>
    <message>
        <source>Service turned off</source>
        <translation>A szolgáltatás ki van kapcsolva</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Szinkronizálás</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder?\nThe files already on this computer will be kept.</source>
        <translation>Megszünteti ennek a megosztott mappának a szinkronizálását?\nA számítógépen már meglévő fájlok megmaradnak.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>Te&amp;lepítés</translation>
    </message>
    <message>
        <source>Files to exclude</source>
        <translation>Kizárandó fájlok</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>Állapot részletei</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>Ne&amp;m fogadom el a licencszerződés feltételeit</translation>
    </message>
    <message>
        <source>Something went wrong. Try again, and contact the server administrator if the problem continues. Details are in ~/.Quillmere/log.</source>
        <translation>Hiba történt. Próbálkozzon újra, és ha a probléma továbbra is fennáll, forduljon a kiszolgáló rendszergazdájához. A részletek itt találhatók: ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>Tray icons</source>
        <translation>A rendszertálca ikonjai</translation>
    </message>
    <message>
        <source>The folder is read-only. Choose a folder you can write to.</source>
        <translation>A mappa írásvédett. Válasszon olyan mappát, amelybe írhat.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Következő</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Vissza</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxybeállítások</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so Quillmere might not install completely. Continue?</source>
        <translation>Nem rendszergazdaként jelentkezett be, ezért lehet, hogy a Quillmere telepítése nem lesz teljes. Folytatja?</translation>
    </message>
    <message>
        <source>Use the tray icon at any time to see the sync status or change the settings.</source>
        <translation>A rendszertálcán lévő ikonnal bármikor megtekintheti a szinkronizálás állapotát, vagy módosíthatja a beállításokat.</translation>
    </message>
    <message>
        <source>Share link created</source>
        <translation>Megosztási hivatkozás létrehozva</translation>
    </message>
    <message>
        <source>The user name or password is not correct. Check both, then try again.</source>
        <translation>A felhasználónév vagy a jelszó helytelen. Ellenőrizze mindkettőt, majd próbálkozzon újra.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Készen áll a [ProductName] javítására</translation>
    </message>
    <message>
        <source>The shared folder %1 is now available. Click here to sync it.</source>
        <translation>Elérhetővé vált a következő megosztott mappa: %1. Kattintson ide a szinkronizálásához.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Állapot:</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Méret</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>Kapcsolati adatok</translation>
    </message>
    <message>
        <source>Lets you choose which features are installed.</source>
        <translation>Itt választhatja ki a telepítendő összetevőket.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mappanév</translation>
    </message>
    <message>
        <source>Folder is a mount point</source>
        <translation>A mappa csatolási pont</translation>
    </message>
    <message>
        <source>Choose another folder...</source>
        <translation>Másik mappa választása…</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Csak letöltés</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Repair</source>
        <translation>[DlgTitleFont]&amp;Javítás</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Eltávolítás</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maximális fájlméret</translation>
    </message>
    <message>
        <source>Enter the server address and the account you use on the server.</source>
        <translation>Adja meg a kiszolgáló címét és a kiszolgálón használt fiókját.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eltávolítás</translation>
    </message>
    <message>
        <source>Another server was found at the server address.</source>
        <translation>A kiszolgáló címén egy másik kiszolgáló található.</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>Kapcsolódás a kiszolgálóhoz…</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Create share link</source>
        <translation>Megosztás hivatkozással</translation>
    </message>
    <message>
        <source>The user name or password was not accepted by the server. Edit the connection and enter them again.</source>
        <translation>A kiszolgáló nem fogadta el a felhasználónevet vagy a jelszót. Szerkessze a kapcsolatot, és adja meg őket újra.</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Nemrég frissített fájlok</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>A rendszer proxybeállításainak használata</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>Mappa módosítása…</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Befejezés</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappa elérési útja</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Letöltés…</translation>
    </message>
    <message>
        <source>File locked</source>
        <translation>Fájl zárolva</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Előkészítés…</translation>
    </message>
    <message>
        <source>Syncing files...</source>
        <translation>Fájlok szinkronizálása…</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Készen áll a [ProductName] telepítésére</translation>
    </message>
    <message>
        <source>Checking the user name and password...</source>
        <translation>A felhasználónév és a jelszó ellenőrzése…</translation>
    </message>
    <message>
        <source>Wait while the Setup Wizard makes the changes to [ProductName]. This can take several minutes.</source>
        <translation>Várjon, amíg a telepítővarázsló végrehajtja a [ProductName] módosításait. Ez több percig is eltarthat.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Kezelés</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Állapot</translation>
    </message>
    <message>
        <source>The server ID is not valid. Check the server ID, then try again.</source>
        <translation>A kiszolgálóazonosító érvénytelen. Ellenőrizze a kiszolgálóazonosítót, majd próbálkozzon újra.</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>Szinkronizálási mappa megnyitása</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>A rendszertálcán lévő ikonra való dupla kattintáskor</translation>
    </message>
    <message>
        <source>Syncing could not be turned on for this shared folder. Check your permissions on the server, then try again.</source>
        <translation>Nem sikerült bekapcsolni a szinkronizálást ennél a megosztott mappánál. Ellenőrizze a jogosultságait a kiszolgálón, majd próbálkozzon újra.</translation>
    </message>
    <message>
        <source>File sharing over the relay is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>A közvetítőn keresztüli fájlmegosztás ki van kapcsolva a kiszolgálón. Kérje meg a kiszolgáló rendszergazdáját, hogy kapcsolja be.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hozzáadás</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Érték</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Szinkronizálás folytatása</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>Kilé&amp;pés</translation>
    </message>
    <message>
        <source>The share link was copied to the clipboard.</source>
        <translation>A megosztási hivatkozás a vágólapra került.</translation>
    </message>
    <message>
        <source>The local sync folder was not found. Restore the folder, or choose another folder. See Sync tasks for its path.</source>
        <translation>A helyi szinkronizálási mappa nem található. Állítsa helyre a mappát, vagy válasszon másikat. A mappa elérési útját a Szinkronizálási feladatok oldalon találja.</translation>
    </message>
    <message>
        <source>Upgrade Quillmere</source>
        <translation>A Quillmere frissítése</translation>
    </message>
    <message>
        <source>Add sync task...</source>
        <translation>Feladat hozzáadása…</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server. Ask the server administrator to mount it. See Shared folders for its name.</source>
        <translation>A megosztott mappa nincs csatolva a kiszolgálón. Kérje meg a kiszolgáló rendszergazdáját, hogy csatolja. A mappa nevét a Megosztott mappák oldalon találja.</translation>
    </message>
    <message>
        <source>The server sent an unexpected response. Upgrade Quillmere on this computer, and ask the server administrator to upgrade it on the server. Details are in ~/.Quillmere/log.</source>
        <translation>A kiszolgáló váratlan választ küldött. Frissítse a Quillmere programot ezen a számítógépen, és kérje meg a kiszolgáló rendszergazdáját, hogy frissítse a kiszolgálón is. A részletek itt találhatók: ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Kiszolgáló áttekintése</translation>
    </message>
    <message>
        <source>Syncing stopped because of a problem. Click here for details.</source>
        <translation>A szinkronizálás egy probléma miatt leállt. A részletekért kattintson ide.</translation>
    </message>
    <message>
        <source>Enter a size of at most %1 MB.</source>
        <translation>Legfeljebb %1&#xa0;MB méretet adjon meg.</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Fájlok ellenőrzése…</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Szinkronizálási kísérlet…</translation>
    </message>
    <message>
        <source>Click Install to begin the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>A [ProductName] telepítésének megkezdéséhez kattintson a Telepítés gombra. A választott beállítások áttekintéséhez kattintson a Vissza, a telepítővarázslóból való kilépéshez a Mégse gombra.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup was canceled</source>
        <translation>{\VerdanaBold13}Megszakította a [ProductName] telepítőjét</translation>
    </message>
    <message>
        <source>The folder is not empty. Merge its files with those on the server, or choose another folder.</source>
        <translation>A mappa nem üres. Egyesítse a fájljait a kiszolgálón lévőkkel, vagy válasszon másik mappát.</translation>
    </message>
    <message>
        <source>This folder is being indexed. Its files will appear when indexing is complete.</source>
        <translation>A mappa indexelése folyamatban van. A fájljai az indexelés befejezése után jelennek meg.</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Felhasználónév</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Egyesítés</translation>
    </message>
    <message>
        <source>You can open the files in this shared folder, but changes you make are not uploaded.</source>
        <translation>A megosztott mappában lévő fájlokat megnyithatja, de az Ön módosításai nem töltődnek fel.</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Hálózati beállítások</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder. Choose another folder.</source>
        <translation>A program ezt a mappát már egy másik megosztott mappával szinkronizálja. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Folytatás</translation>
    </message>
    <message>
        <source>The server has no free disk space.</source>
        <translation>A kiszolgálón nincs szabad lemezterület.</translation>
    </message>
    <message>
        <source>Relay by server ID</source>
        <translation>Közvetítés kiszolgálóazonosítóval</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nem</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Válassza ki a kívánt műveletet.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup did not finish</source>
        <translation>{\VerdanaBold13}A [ProductName] telepítője nem fejezte be a műveletet</translation>
    </message>
    <message>
        <source>Quillmere is already running.</source>
        <translation>A Quillmere már fut.</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Üdvözöljük</translation>
    </message>
    <message>
        <source>Start Quillmere when I sign in to this computer</source>
        <translation>A Quillmere indítása, amikor bejelentkezem erre a számítógépre</translation>
    </message>
    <message>
        <source>All files from both folders are kept. If two versions of a file differ, both are kept under different names.</source>
        <translation>Mindkét mappa minden fájlja megmarad. Ha egy fájl két verziója eltér egymástól, mindkettő megmarad, eltérő néven.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>A telepített program javítása</translation>
    </message>
    <message>
        <source>Syncing turned on</source>
        <translation>Szinkronizálás bekapcsolva</translation>
    </message>
    <message>
        <source>Quillmere could not start. Restart the computer, then start Quillmere again. Details are in ~/.Quillmere/log.</source>
        <translation>Nem sikerült elindítani a Quillmere programot. Indítsa újra a számítógépet, majd indítsa el ismét a Quillmere programot. A részletek itt találhatók: ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>Cancel [ProductName] setup?</source>
        <translation>Megszakítja a [ProductName] telepítőjét?</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Folytatás mindenképp</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove [ProductName]</source>
        <translation>[DlgTitleFont]A [ProductName] módosítása, javítása vagy eltávolítása</translation>
    </message>
    <message>
        <source>Quillmere is set up</source>
        <translation>A Quillmere beállítása kész</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Nyelv</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Speciális beállítások</translation>
    </message>
    <message>
        <source>Browse versions...</source>
        <translation>Verziók tallózása…</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]&amp;Módosítás</translation>
    </message>
    <message>
        <source>This computer is disconnected from the server. Reconnect to continue syncing.</source>
        <translation>Ez a számítógép bontotta a kapcsolatot a kiszolgálóval. A szinkronizálás folytatásához kapcsolódjon újra.</translation>
    </message>
    <message>
        <source>Detecting...</source>
        <translation>Észlelés…</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Tanúsítványfigyelmeztetés</translation>
    </message>
    <message>
        <source>The relay service cannot be reached. Check the internet connection, then try again.</source>
        <translation>A közvetítő szolgáltatás nem érhető el. Ellenőrizze az internetkapcsolatot, majd próbálkozzon újra.</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Eltávolítja a [ProductName] programot a számítógépről.</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>%1 letöltése…</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Befejezés</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Írásvédett mappa</translation>
    </message>
    <message>
        <source>[DlgTitleFont]You canceled setup, and your computer was not changed.</source>
        <translation>[DlgTitleFont]Megszakította a telepítőt, a számítógépen semmi sem változott.</translation>
    </message>
    <message>
        <source>The port number is not valid. Enter a number from 1 to 65535.</source>
        <translation>A portszám érvénytelen. Adjon meg egy 1 és 65535 közötti számot.</translation>
    </message>
    <message>
        <source>Quillmere cannot watch for changes on a network drive. Choose a folder on a local drive.</source>
        <translation>A Quillmere nem tudja figyelni a hálózati meghajtókon történő változásokat. Válasszon egy helyi meghajtón lévő mappát.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>A telepített program eltávolítása</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Közvetlen kapcsolat</translation>
    </message>
    <message>
        <source>The drive on the server that holds this folder is not mounted. Ask the server administrator to mount it. See Sync tasks for the folder.</source>
        <translation>A kiszolgálón nincs csatolva az a meghajtó, amely ezt a mappát tartalmazza. Kérje meg a kiszolgáló rendszergazdáját, hogy csatolja a meghajtót. A mappát a Szinkronizálási feladatok oldalon találja.</translation>
    </message>
    <message>
        <source>This version of Quillmere is already installed. Install it again?</source>
        <translation>A Quillmere ezen verziója már telepítve van. Újratelepíti?</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server. Upgrade it, then try again.</source>
        <translation>Ezen a számítógépen a Quillmere túl régi, ezért nem tud együttműködni a kiszolgálóval. Frissítse a programot, majd próbálkozzon újra.</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer.</source>
        <translation>A kiszolgálón a Quillmere túl régi, ezért nem tud együttműködni ezzel a számítógéppel.</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>Kikapcsolva</translation>
    </message>
</context>
</TS>
